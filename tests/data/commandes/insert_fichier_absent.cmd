insert deux.rou absent.rou 1 OUT
