// Ending the program at once, from wherever it stands.
#pragma once

#include <functional>

/// Closes the main form, whatever screens stand over it, and leaves the message loop: no save, no
/// question.
void terminateApplication();

/// The close of the main form, for terminateApplication(); an empty one takes it away.
void setMainFormClose(std::function<void()> close);
