insert deux.rou feuille_4.rou 1 OUT --map 1,2
