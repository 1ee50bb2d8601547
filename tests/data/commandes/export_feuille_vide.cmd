export quatre.rou 5 5 OUT
