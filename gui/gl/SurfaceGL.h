#pragma once
// Where the renderer draws: an OpenGL 3.3 core context that it can make current, the size
// of the picture wanted, and a way to show a finished picture. The renderer draws into a
// framebuffer of its own; the surface only lends the context and shows the result.
#include <QSize>

class QOpenGLContext;
class QOpenGLFramebufferObject;

class TSurfaceGL {
public:
  virtual ~TSurfaceGL() = default;
  // Makes the context current; false when there is none.
  virtual bool Active() = 0;
  virtual QOpenGLContext* Contexte() = 0;
  // The client area's size in pixels.
  virtual QSize Taille() = 0;
  // The picture in `image` is finished and may be shown.
  virtual void Presente(QOpenGLFramebufferObject& image) = 0;
};
