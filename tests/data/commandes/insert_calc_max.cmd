insert deux.rou synchro.rou 2 OUT --times calc
