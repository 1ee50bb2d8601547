paste coller.rou 0 1 2 1 2 555 500 OUT
