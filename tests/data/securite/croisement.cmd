check croisement.rou
