#pragma once
// A kite model as the renderer draws it: a flat list of triangles in the coordinates of
// its named frame, each with one colour and one normal (flat shading).
#include <QVector3D>

#include <string>
#include <vector>

struct TSommetModele {
  QVector3D Position;
  QVector3D Normale;  // the face's
  QVector3D Couleur;  // the face material's diffuse colour
};

struct TModele {
  std::vector<TSommetModele> Sommets;  // three per triangle
};

// Reads a DirectX .x file and keeps what lies under the frame named `nomCadre`, in the
// file's own left-handed coordinates. Returns 0 or a SCENEERR_* code (platform/ErreursRendu.h).
long ChargeModeleX(const std::string& fichier, const std::string& nomCadre, TModele& modele);
