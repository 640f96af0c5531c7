// The store of error texts in the common database.
#pragma once

#include <QString>

/// Reads vcErrorMessages: true with gErrorMsg and gErrorComment filled, false, both blank, without a
/// row. A failure is shown as "999999" and thrown on.
bool sfg_GetErrorMessage(const QString& xErrorNo);
