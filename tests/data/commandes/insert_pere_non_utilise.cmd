insert deux.rou feuilles_2_3.rou 1 OUT --map 2,3
