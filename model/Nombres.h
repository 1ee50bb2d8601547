#pragma once
// Numbers as text, in the one form used by the files and the property bars.
#include <string>

// The value with at most `chiffres` significant digits, as printf's %g writes it: no trailing
// zeros, no trailing point, the exponent form once the value needs it.
std::string Gcvt(double valeur, int chiffres);
// The same, written at the end of `texte`.
void AjouteGcvt(std::string& texte, double valeur, int chiffres);
// An integer as std::to_string writes it, at the end of `texte`.
void AjouteEntier(std::string& texte, long long valeur);
