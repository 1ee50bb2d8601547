vignette debut.rou OUT --size 64px
