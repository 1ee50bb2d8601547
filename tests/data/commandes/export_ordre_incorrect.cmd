export quatre.rou 3 2 OUT
