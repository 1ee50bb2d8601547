check paralleles.rou --distance 3.5
