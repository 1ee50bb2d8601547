#include "gui/son/SonSDL.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <cstdint>

namespace {
// The one channel the music plays on.
constexpr int CANAL = 0;
}  // namespace

TSonSDL::~TSonSDL() {
  Interromps();
  for (auto& [nom, musique] : Musiques) Mix_FreeChunk(musique);
  Musiques.clear();
  if (PeripheriqueOuvert) {
    Mix_CloseAudio();
    Mix_Quit();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
  }
}

bool TSonSDL::OuvrePeripherique() {
  if (PeripheriqueOuvert) return true;
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
  if (Mix_OpenAudio(44100, AUDIO_S16SYS, 2, 1024) != 0) {
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  PeripheriqueOuvert = true;
  return true;
}

void TSonSDL::Interromps() {
  if (!Extrait) return;
  Mix_HaltChannel(CANAL);
  Mix_FreeChunk(Extrait);  // frees the view only: the samples stay with Source
  Extrait = nullptr;
  Source = nullptr;
}

int TSonSDL::Ouvrir(const std::string& fichier, const std::string& nom) {
  Fermer(nom);
  if (!OuvrePeripherique()) return ErreurPeripherique;
  Mix_Chunk* musique = Mix_LoadWAV(fichier.c_str());
  if (!musique) return ErreurFichier;
  Musiques[nom] = musique;
  return 0;
}

int TSonSDL::Jouer(const std::string& nom, int depuisMs) {
  const auto it = Musiques.find(nom);
  if (it == Musiques.end()) return ErreurNomInconnu;
  Mix_Chunk* musique = it->second;
  if (depuisMs < 0) return ErreurPosition;
  // The samples are at the device's format, which may not be the one asked for.
  int frequence = 0, canaux = 0;
  Uint16 format = 0;
  if (!Mix_QuerySpec(&frequence, &format, &canaux)) return ErreurLecture;
  const std::uint64_t octetsParTrame = SDL_AUDIO_BITSIZE(format) / 8 * static_cast<std::uint64_t>(canaux);
  const std::uint64_t debut = static_cast<std::uint64_t>(depuisMs) * static_cast<std::uint64_t>(frequence) / 1000 *
                              octetsParTrame;
  if (debut >= musique->alen) return ErreurPosition;

  Interromps();
  Extrait = Mix_QuickLoad_RAW(musique->abuf + debut, static_cast<Uint32>(musique->alen - debut));
  if (!Extrait) return ErreurLecture;
  if (Mix_PlayChannel(CANAL, Extrait, 0) < 0) {
    Mix_FreeChunk(Extrait);
    Extrait = nullptr;
    return ErreurLecture;
  }
  Source = musique;
  DernierDepart = depuisMs;
  return 0;
}

int TSonSDL::Arreter(const std::string& nom) {
  const auto it = Musiques.find(nom);
  if (it == Musiques.end()) return ErreurNomInconnu;
  if (Source == it->second) Interromps();
  return 0;
}

int TSonSDL::Fermer(const std::string& nom) {
  const auto it = Musiques.find(nom);
  if (it == Musiques.end()) return ErreurNomInconnu;
  if (Source == it->second) Interromps();
  Mix_FreeChunk(it->second);
  Musiques.erase(it);
  return 0;
}

bool TSonSDL::Ouvert(const std::string& nom) const { return Musiques.count(nom) != 0; }

bool TSonSDL::EnLecture(const std::string& nom) const {
  const auto it = Musiques.find(nom);
  return it != Musiques.end() && Source == it->second && Mix_Playing(CANAL) != 0;
}
