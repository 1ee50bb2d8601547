insert deux.rou synchro.rou 1 OUT --map 2,1 --times calc
