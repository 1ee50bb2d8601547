#pragma once
// The player's client area: an OpenGL widget that lends its context to the scene's renderer
// and shows each picture the renderer finishes. The scene draws when the player's cadence
// says, not from paintGL; paintGL only copies the last picture, so a repaint never advances
// the clock.
#include "gui/gl/RenduGL.h"
#include "gui/gl/SurfaceGL.h"

#include <QOpenGLWidget>

#include <functional>

class QVue3D : public QOpenGLWidget, public TSurfaceGL {
  Q_OBJECT
public:
  explicit QVue3D(QWidget* parent = nullptr);
  ~QVue3D() override;

  TRenduGL& Rendu() { return rendu_; }

  // Called at each paint, before the picture is copied: the player's Paint.
  void SetPeinture(std::function<void()> peinture) { peinture_ = std::move(peinture); }
  // Called when the widget's size changes.
  void SetRedimensionnement(std::function<void()> f) { redimensionnement_ = std::move(f); }

  bool Active() override;
  QOpenGLContext* Contexte() override { return context(); }
  QSize Taille() override;
  void Presente(QOpenGLFramebufferObject& image) override;

protected:
  void paintGL() override;
  void resizeGL(int largeur, int hauteur) override;

private:
  TRenduGL rendu_{*this};
  QOpenGLFramebufferObject* image_ = nullptr;  // the last picture shown, the renderer's
  std::function<void()> peinture_;
  std::function<void()> redimensionnement_;
};
