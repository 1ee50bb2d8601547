insert un.rou saut.rou 1 OUT
