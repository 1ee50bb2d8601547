#pragma once
// One picture of the running demonstration, held at an instant with the scene's options: what
// `render` draws, and each frame a video is made of. The picture goes to the renderer's
// surface, where the caller reads it.
#include "scene/OptionsScene.h"

class TD3DDemo;

// The scene held at t (hundredths of a second), as the player's "back to the start" holds it,
// drawn once with `options`. A t at or after the end draws the start, as the player does.
void DessineInstant(TD3DDemo& scene, int t, const TOptionsScene& options);
