export quatre.rou 4 4 un.rou
