follow suivre.rou 0 2 7 150 OUT --followers 3,1 --mode 553
