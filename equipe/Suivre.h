#pragma once
// "Follow the leader": a range of one kite's track repeated by other kites, each one a fixed
// delay later than the one before, built on the editor's paste.
#include <vector>

class TElt;

struct TParamSuivre {
  std::vector<int> Suiveurs;  // kites, from 0, in the order they follow
  int Delai = 150;            // 1/100 s between the leader and the first follower, and so on
  int Mode = 551;             // the paste's transformation, 551 to 555
};

// Pastes the range premier..dernier (one sheet, never a track's first element) after the
// last element of each follower up to the range's sheet, transformed by p.Mode. For the n-th
// follower the first element and every element on "temps" are anchored n x p.Delai after
// the leader's; the others keep their constraint, so the follower flies the leader's track
// n x p.Delai later from the end of its first copied element on. A follower with no element
// starts on a point where the range starts. One undo copy is taken first, so one Undo takes
// it all back. Refused, with the editor's message and nothing changed, when a follower is
// the leader, does not exist, is named twice or starts on a later sheet. True when done.
bool Suivre(TElt* premier, TElt* dernier, const TParamSuivre& p);
