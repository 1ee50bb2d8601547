check croisement_decale.rou
