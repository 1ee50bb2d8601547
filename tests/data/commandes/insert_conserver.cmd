insert deux.rou synchro.rou 1 OUT
