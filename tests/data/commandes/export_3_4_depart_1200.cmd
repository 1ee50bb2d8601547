export quatre.rou 3 4 OUT
