paint croisement.rou 1 OUT --alertes
