check paralleles.rou --distance trois
