paste coller.rou 0 1 7 0 7 553 0 OUT
