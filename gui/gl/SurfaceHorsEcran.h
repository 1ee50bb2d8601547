#pragma once
// A surface with no window: an offscreen context for the command line, tests and
// benchmarks, whose pictures are read back as images. Needs a QGuiApplication.
#include "gui/gl/SurfaceGL.h"

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>

class TSurfaceHorsEcran : public TSurfaceGL {
public:
  explicit TSurfaceHorsEcran(QSize taille);
  bool Active() override;
  QOpenGLContext* Contexte() override { return &contexte_; }
  QSize Taille() override { return taille_; }
  void SetTaille(QSize taille) { taille_ = taille; }
  void Presente(QOpenGLFramebufferObject& image) override;

  // The last picture shown; null before the first.
  const QImage& Image() const { return image_; }

private:
  QSize taille_;
  QOffscreenSurface surface_;
  QOpenGLContext contexte_;
  bool pret_ = false;
  QImage image_;
};

// The format every context of the renderer asks for: OpenGL 3.3 core, with a depth buffer.
QSurfaceFormat FormatRendu();
