check paralleles.rou --ligne 20 --distance 2.5
