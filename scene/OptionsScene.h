#pragma once
// What the player's 3D picture shows beyond the kites and the clouds: each switch of the
// player's menu, the same as options of the companion's `render` and `video`.
#include <string>
#include <vector>

enum class TCamera { Public, Pilotes, Juge };

struct TOptionsScene {
  double Traines = 0;  // seconds of trail behind each kite; 0: no trail
  bool Lignes = false;   // the pilots and their lines
  bool Sol = false;      // the ground plane
  bool Fenetre = false;  // the wind window's edge and quarter lines
  TCamera Camera = TCamera::Public;
  // The two closest kites joined by a red line while closer than the safety distance: always
  // in the player, in pictures and films when asked.
  bool Securite = false;
  bool operator==(const TOptionsScene&) const = default;
};

inline constexpr double TRAINES_DEFAUT = 3.0;

// Reads the scene's options among a command's arguments: `--traines [S]`, `--lignes`, `--sol`,
// `--fenetre`, `--camera public|pilotes|juge`, `--alertes`. Each one it knows is taken out of `args`; the
// others stay, in order. False, with `erreur` set (French), on a bad value.
bool PrendOptionsScene(std::vector<std::string>& args, TOptionsScene& options, std::string& erreur);
