export quatre.rou 2 6 OUT
