check tour_et_retour.rou --enroulement 0.99
