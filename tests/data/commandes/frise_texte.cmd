frise frise_trois_feuilles.rou OUT --texte --from 0 --to 600
