#pragma once
// What a film of the routine is, before any encoder: its size, its frames' times, its range,
// and where its sound comes from in the music.
#include <string>

#include "platform/EncodeurVideo.h"

inline constexpr int LARGEUR_FILM_MAX = 3840, HAUTEUR_FILM_MAX = 2160;

// The encoders need even sizes: an odd one is rounded down, with `message` saying so. False,
// with `message` saying why, for a size under 2 or above 3840 x 2160.
bool AjusteTailleFilm(int& largeur, int& hauteur, std::string& message);

// The container for the file's extension (.mp4 or .webm, any case); false for any other.
bool ConteneurDuNom(const std::string& chemin, TConteneur& conteneur);

// The range FROM..TO in hundredths within a routine that ends at `fin`; TO < 0 stands for the
// end. False, with `erreur`, when it is empty or outside the routine.
bool VerifiePlage(int& de, int& a, int fin, std::string& erreur);

// The routine's time of frame i: the player's clock is in whole hundredths.
int TempsImage(int de, int fps, int i);
// Frames whose time falls in [de, a).
int NbImages(int de, int a, int fps);
// Sound samples that last as long as `images` frames.
long long NbEchantillons(int images, int fps);
// The music's sample played at routine time `de`: the player starts it from de x 10 ms.
long long PremierEchantillon(int de);

// `nb` stereo samples of the film from its sample `debut`: the music's samples from
// `premier` + `debut`, silence where the music has none.
void ExtraitMusique(const float* musique, long long nbMusique, long long premier, long long debut,
                    float* sortie, int nb);
