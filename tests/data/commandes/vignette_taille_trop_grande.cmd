vignette debut.rou OUT --size 4097
