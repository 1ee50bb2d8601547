check absent.rou
