export quatre.rou 0 2 OUT
