#include "gui/gl/SurfaceHorsEcran.h"

#include <QOpenGLFramebufferObject>

QSurfaceFormat FormatRendu() {
  QSurfaceFormat format;
  format.setRenderableType(QSurfaceFormat::OpenGL);
  format.setVersion(3, 3);
  format.setProfile(QSurfaceFormat::CoreProfile);
  format.setDepthBufferSize(24);
  return format;
}

TSurfaceHorsEcran::TSurfaceHorsEcran(QSize taille) : taille_(taille) {
  surface_.setFormat(FormatRendu());
  surface_.create();
  contexte_.setFormat(FormatRendu());
  pret_ = surface_.isValid() && contexte_.create();
}

bool TSurfaceHorsEcran::Active() { return pret_ && contexte_.makeCurrent(&surface_); }

void TSurfaceHorsEcran::Presente(QOpenGLFramebufferObject& image) { image_ = image.toImage(); }
