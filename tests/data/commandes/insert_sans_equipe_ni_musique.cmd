insert un.rou equipe_musique.rou 1 OUT
