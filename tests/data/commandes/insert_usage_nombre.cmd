insert deux.rou synchro.rou 1 OUT --dx 1.5
