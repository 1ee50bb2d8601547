#include "gui/lecteur/QVue3D.h"

#include "gui/gl/SurfaceHorsEcran.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>

QVue3D::QVue3D(QWidget* parent) : QOpenGLWidget(parent) { setFormat(FormatRendu()); }

QVue3D::~QVue3D() {
  // The renderer lets go of its GL objects while the context still exists.
  makeCurrent();
}

bool QVue3D::Active() {
  if (!context() || !context()->isValid()) return false;
  makeCurrent();
  return true;
}

QSize QVue3D::Taille() { return size() * devicePixelRatio(); }

void QVue3D::Presente(QOpenGLFramebufferObject& image) {
  image_ = &image;
  update();
}

void QVue3D::paintGL() {
  if (peinture_) peinture_();
  // A picture made before a resize may be gone with its device: only the renderer's
  // present one is copied.
  QOpenGLFramebufferObject* image = rendu_.ImageCourante();
  QOpenGLExtraFunctions* f = context()->extraFunctions();
  f->glBindFramebuffer(GL_DRAW_FRAMEBUFFER, defaultFramebufferObject());
  if (!image || image != image_) {
    f->glClearColor(0, 0, 0, 1);
    f->glClear(GL_COLOR_BUFFER_BIT);
    return;
  }
  const QSize cible = Taille();
  f->glBindFramebuffer(GL_READ_FRAMEBUFFER, image->handle());
  f->glBlitFramebuffer(0, 0, image->width(), image->height(), 0, 0, cible.width(), cible.height(),
                       GL_COLOR_BUFFER_BIT, GL_LINEAR);
  f->glBindFramebuffer(GL_FRAMEBUFFER, defaultFramebufferObject());
}

void QVue3D::resizeGL(int, int) {
  if (redimensionnement_) redimensionnement_();
}
