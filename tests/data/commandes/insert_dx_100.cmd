insert deux.rou synchro.rou 1 OUT --dx 100 --dy -100 --times calc
