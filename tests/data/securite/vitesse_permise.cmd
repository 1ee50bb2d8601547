check trop_rapide.rou --vitesse 50
