paste coller.rou 0 2 4 0 1 552 0 OUT
