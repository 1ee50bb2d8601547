exporte entree.rou 1 2 OUT
