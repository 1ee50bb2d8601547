paste coller.rou 0 1 3 0 7 551 0 OUT
