export quatre.rou 2 OUT
