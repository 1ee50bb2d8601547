#include "Commandes.h"

// Each command is one entry; the file and player commands join the table as they come.
const std::vector<TCommande>& Commandes() {
  static const std::vector<TCommande> commandes;
  return commandes;
}
