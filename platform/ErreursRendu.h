#pragma once
// The failure codes of our renderer, by family, with their names as the scene's log writes
// them. 0 is success. The device family covers the drawing surface and the GL context; the
// scene family covers frames, models, backdrop, light and camera.

enum TErreurDispositif : long {
  DISPERR_PASDECONTEXTE = 1,       // no OpenGL context could be made current
  DISPERR_VERSIONGL = 2,           // the context is older than OpenGL 3.3 core
  DISPERR_TAILLENULLE = 3,         // the client area has no width or height
  DISPERR_TAMPONIMAGE = 4,         // the framebuffer object is incomplete
  DISPERR_SHADER = 5,              // a shader did not compile or link
  DISPERR_MEMOIRE = 6,             // out of memory on the device
  DISPERR_PARAMETRE = 7,           // a parameter out of its range
  DISPERR_INTROUVABLE = 8,         // a named object does not exist
  DISPERR_NONINITIALISE = 9,       // called before the device was made
  DISPERR_OBJETINVALIDE = 10,      // an object that was released or never made
};

enum TErreurScene : long {
  SCENEERR_FICHIERMODELE = 101,    // a model file could not be read
  SCENEERR_FORMATMODELE = 102,     // a model file is not a mesh the renderer can draw
  SCENEERR_CADREABSENT = 103,      // the model has no frame of the expected name
  SCENEERR_FICHIERFOND = 104,      // the backdrop picture could not be read
  SCENEERR_CADREINCONNU = 105,     // a frame number that names no frame
  SCENEERR_PASDECAMERA = 106,      // a picture asked for before the camera was made
  SCENEERR_PASDEVUE = 107,         // a picture asked for before the viewport was made
  SCENEERR_LUMIERE = 108,          // the light could not be made
};

// The names of a family's codes; null for a code outside the family.
const char* NomErreurDispositif(long code);
// The scene's table holds its own codes and five of the device's, as a scene call can fail
// for those reasons too.
const char* NomErreurScene(long code);
