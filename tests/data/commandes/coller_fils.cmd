paste coller.rou 1 1 2 0 7 552 0 OUT
