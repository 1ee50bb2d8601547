follow suivre.rou 0 2 7 150 OUT --followers 2,1,2
