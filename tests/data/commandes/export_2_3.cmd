export quatre.rou 2 3 OUT
