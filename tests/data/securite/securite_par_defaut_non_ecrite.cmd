resave reglages_par_defaut.rou OUT
