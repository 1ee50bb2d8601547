frise chaque_classe.rou OUT --width 5
