export absente.rou 1 1 OUT
