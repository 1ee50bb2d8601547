#pragma once
// The keys the player's view answers while it has the focus, as a video player's: space plays
// or pauses, the arrows step and change the speed, Home goes back to the start.
enum class TToucheLecteur { Espace, Gauche, Droite, Haut, Bas, Origine };

// The command of the player's menu a key gives now: space pauses while the last transport
// command plays (forward or backward) and plays forward otherwise.
unsigned CommandeTouche(TToucheLecteur touche);
