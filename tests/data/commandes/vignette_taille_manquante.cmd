vignette debut.rou OUT --size
