resave espacement.rou OUT
