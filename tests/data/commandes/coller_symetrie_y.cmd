paste coller.rou 0 1 7 0 7 554 0 OUT
