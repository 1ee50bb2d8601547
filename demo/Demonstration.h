#pragma once
// Starting and ending a demonstration: the scene and its music, as the player makes and
// destroys them.

// Stops and closes the music, then builds a new scene of nbCV kites lasting tFin, with empty
// tracks, paused, and opens the routine's music if it has one.
void InitDemo(int nbCV, float tFin);
// Stops and closes the music and destroys the scene, if there is one.
void FermeDemo();
