paste chaque_classe.rou 0 1 5 0 14 551 0 OUT
