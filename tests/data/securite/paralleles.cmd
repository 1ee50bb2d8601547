check paralleles.rou
