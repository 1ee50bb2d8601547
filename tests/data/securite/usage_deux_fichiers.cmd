check paralleles.rou tour.rou
