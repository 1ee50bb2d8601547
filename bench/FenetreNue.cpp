// What the application's start is measured against (bench/demarrage.sh): a bare Qt window, or
// with "gl" one holding a single QOpenGLWidget, shown at once.
#include <QApplication>
#include <QMainWindow>
#include <QOpenGLWidget>

#include <cstring>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const bool gl = argc > 1 && std::strcmp(argv[1], "gl") == 0;
  QMainWindow fenetre;
  fenetre.setWindowTitle(gl ? QStringLiteral("fenetre-nue-gl") : QStringLiteral("fenetre-nue"));
  if (gl) fenetre.setCentralWidget(new QOpenGLWidget(&fenetre));
  fenetre.resize(800, 500);
  fenetre.show();
  return application.exec();
}
