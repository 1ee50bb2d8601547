export quatre.rou 2x 3 OUT
