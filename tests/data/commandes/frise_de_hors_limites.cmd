frise chaque_classe.rou OUT --texte --from 1e9
