vignette debut.rou
