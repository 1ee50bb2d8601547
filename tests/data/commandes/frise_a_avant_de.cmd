frise chaque_classe.rou OUT --texte --from 500 --to 100
