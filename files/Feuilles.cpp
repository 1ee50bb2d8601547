// Sheet export and file insertion.
#include "editor/FenDessin.h"
#include "platform/Dialogues.h"

void TFenDessin::EnregistrerFeuille() { Dialogues().MessageStatut("- Commande pas encore disponible dans cette version -"); }
void TFenDessin::OuvrirFeuille() { Dialogues().MessageStatut("- Commande pas encore disponible dans cette version -"); }
