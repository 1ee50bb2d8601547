frise chaque_classe.rou OUT --texte
