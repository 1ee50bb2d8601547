#pragma once
// OpenGL through Qt needs an X server even offscreen (GLX). Where the environment has no
// display, this starts a private Xvfb for the life of the object and points DISPLAY at it,
// with Mesa's software rasteriser.
#include <string>
#include <sys/types.h>

class TServeurX {
public:
  TServeurX() = default;
  TServeurX(const TServeurX&) = delete;
  TServeurX& operator=(const TServeurX&) = delete;
  ~TServeurX();

  // True when a display is usable: there was one already, or Xvfb started. `erreur` says
  // why not otherwise.
  bool Assure(std::string& erreur);
  // The same, and Qt's offscreen platform unless another is chosen: no window is ever
  // shown, GL comes from the X server. To be called before the QGuiApplication is made.
  bool PrepareHorsEcran(std::string& erreur);

private:
  pid_t pid_ = -1;
};
