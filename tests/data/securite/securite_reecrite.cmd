resave paralleles_reglees.rou OUT
