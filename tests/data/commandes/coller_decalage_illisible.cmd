paste coller.rou 0 1 2 0 7 552 5s OUT
