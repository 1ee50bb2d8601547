insert deux.rou synchro.rou 9 OUT
