frise absente.rou OUT --texte
