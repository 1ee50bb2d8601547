#pragma once
// The routine's music for a film: its WAV file decoded and resampled, by FFmpeg's libraries,
// to the film's rate in stereo.
#include <string>
#include <vector>

// Interleaved stereo floats at FREQUENCE_FILM Hz, from the music's start. False, with
// `erreur` in French, when the file can't be read as a WAV.
bool DecodeMusique(const std::string& chemin, std::vector<float>& stereo, std::string& erreur);
