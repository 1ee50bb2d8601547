#pragma once
// One editable value of an element.

class TParam {
public:
  TParam(char tag, float valeur) : Tag(tag), Valeur(valeur) {}
  float GetParam() const { return Valeur; }
  void SetParam(float valeur) { Valeur = valeur; }

private:
  char Tag;  // "t", "x", "y" or "v"; kept for the record, read by nothing
  float Valeur;
};
