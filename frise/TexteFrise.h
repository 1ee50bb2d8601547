#pragma once
// The timeline as text, one line per thing it shows, for the companion and for tests.
#include <string>

#include "frise/Pistes.h"
#include "frise/Tempo.h"

// The routine's span and end, the sheets' bands, each kite's blocks, then the tempo with its
// beats from debut to fin and the marks.
std::string TexteFrise(const TFrise& frise, const TTempo& tempo, const std::vector<TRepere>& reperes, double debut,
                       double fin);
