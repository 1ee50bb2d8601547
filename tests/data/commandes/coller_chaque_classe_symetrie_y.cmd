paste chaque_classe.rou 0 4 14 0 3 554 1000 OUT
