// The program where nobody can answer it: on a platform that has neither a screen nor input.
#pragma once

/// Whether the platform is one of those ("offscreen", "minimal").
bool isUnattended();

/// From now on what is meant for the user goes to the error output, and every form is turned down:
/// a start that fails ends with its exit status, where it would wait for an answer for ever.
void turnFormsDown();
