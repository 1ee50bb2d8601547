vignette debut.rou OUT --size 15
