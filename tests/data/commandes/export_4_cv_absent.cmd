export quatre.rou 4 4 OUT
