follow suivre.rou 0 2 7 150 OUT --followers 1,0
