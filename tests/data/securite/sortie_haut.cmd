check sortie_haut.rou
