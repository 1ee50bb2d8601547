paste coller.rou 0 1 2 1 2 552 8999876 OUT
