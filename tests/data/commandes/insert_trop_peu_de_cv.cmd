insert deux.rou un.rou 1 OUT
