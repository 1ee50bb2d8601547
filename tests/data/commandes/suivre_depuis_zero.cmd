follow suivre.rou 0 0 7 150 OUT --followers 1
