paste coller.rou 0 0 2 0 7 552 0 OUT
