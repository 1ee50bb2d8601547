#pragma once
// The panels under the sheet (alerts, timeline) come and go without taking the sheet's room:
// the window grows or shrinks by their height, so the sheet and its bars keep theirs.
class QDockWidget;
class QMainWindow;

// Shows or hides dock, docked under the sheet of fenetre, at the given height when shown.
void MontrePanneau(QMainWindow& fenetre, QDockWidget& dock, bool montrer, int hauteur);
