check paralleles.rou --ligne 0
