follow suivre.rou 0 2 6 1,5 OUT --followers 1
