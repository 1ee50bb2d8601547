#pragma once
// trajectoires-cli replay SCRIPT OUT [--in IN]: the exit code of the command.
#include <string>
#include <vector>

int Rejoue(const std::vector<std::string>& args);
