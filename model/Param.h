#pragma once
// One editable value of an element.

class TParam {
public:
  TParam(char tag, float valeur) : Tag(tag), Valeur(valeur) {}
  float GetParam() const { return Valeur; }
  char GetTag() const { return Tag; }
  void SetParam(float valeur) { Valeur = valeur; }

private:
  char Tag;  // "t", "x", "y" or "v"
  float Valeur;
};
