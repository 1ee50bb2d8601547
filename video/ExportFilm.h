#pragma once
// A film of the routine written from start to end: each frame's picture asked for at its time,
// the music placed under it, the file written under a temporary name beside OUT and renamed
// only once whole, so that a failure or a cancel never leaves a partial OUT.
#include <functional>
#include <string>
#include <vector>

#include "platform/EncodeurVideo.h"

enum class TIssueFilm { Fait, Echec, Annule };

struct TDemandeFilm {
  std::string Sortie;
  TFormatFilm Format;  // its size already even, its sound said by Musique
  int De = 0, A = 0;   // the range, checked, in hundredths
  // The music at FREQUENCE_FILM Hz, stereo interleaved, from its start; null: no sound.
  const std::vector<float>* Musique = nullptr;
};

// The picture at routine time t: RGBA rows `pas` bytes apart, or null when it can't be drawn.
using TDessinFilm = std::function<const unsigned char*(int t, int& pas)>;
// Called after each frame with the frames done and their total; false cancels.
using TProgresFilm = std::function<bool(int fait, int total)>;

TIssueFilm ExporteFilm(TEncodeurVideo& encodeur, const TDemandeFilm& demande, const TDessinFilm& dessine,
                       const TProgresFilm& progres, std::string& erreur);
