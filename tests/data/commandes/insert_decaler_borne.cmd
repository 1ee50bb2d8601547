insert debut.rou feuilles_2_3.rou 1 OUT --times 8998300
