// What the flight generator is handed by the class family of model/elements/Pose.h.
#include "model/elements/Pose.h"

#include "demo/CV.h"

void TPose::DirectX() {
  CV* cv = GetCV();
  if (!cv) return;
  // The kite touches down, then stays on the ground for the fixed duration.
  const float t = t2.GetParam();
  switch (TypePose) {
    case POSE_POINTE_GAUCHE: cv->PoseGauche(Num, t - DureeConstante, t); break;
    case POSE_POINTE_DROITE: cv->PoseDroite(Num, t - DureeConstante, t); break;
    default: cv->Pose2(Num, t - DureeConstante, t); break;
  }
}
