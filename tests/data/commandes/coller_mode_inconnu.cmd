paste coller.rou 0 1 2 0 7 556 0 OUT
