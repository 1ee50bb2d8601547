check tour_et_retour.rou
