insert deux.rou synchro.rou OUT
