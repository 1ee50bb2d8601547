vignette debut.rou OUT --couleur
