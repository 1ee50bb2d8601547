#pragma once
// The commands of trajectoires-cli: each takes its arguments and returns the exit code.
#include <functional>
#include <string>
#include <vector>

struct TCommande {
  std::string Nom;
  std::string Usage;   // the arguments, as shown by --help
  std::string Resume;  // one line
  std::function<int(const std::vector<std::string>&)> Executer;
};

const std::vector<TCommande>& Commandes();
