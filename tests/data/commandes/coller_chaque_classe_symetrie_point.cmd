paste chaque_classe.rou 0 4 14 0 14 555 0 OUT
