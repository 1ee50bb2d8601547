check tour.rou
