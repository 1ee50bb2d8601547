check paralleles_reglees.rou --distance 3
