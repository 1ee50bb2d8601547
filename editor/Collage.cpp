// Copy and paste of a selected range.
#include "editor/FenDessin.h"
#include "platform/Dialogues.h"

void TFenDessin::Copier() { Dialogues().MessageStatut("- Commande pas encore disponible dans cette version -"); }
void TFenDessin::Coller() { Dialogues().MessageStatut("- Commande pas encore disponible dans cette version -"); }
