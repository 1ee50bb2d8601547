check trop_rapide.rou
