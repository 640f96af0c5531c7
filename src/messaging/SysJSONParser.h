// Reads the answer of the text message gateway.
#pragma once

#include <QString>

/// The value of the first of the object's own members that is named so, in its exact case: text as it
/// stands, "True" and "False", "null", a number as it is written, compact JSON for an object or a
/// list. Without one it is xUnchanged. Letters beyond ASCII read as "?".
/// Throws VelmaraError when the text is no JSON object.
QString sj_Parse_Tag(const QString& xJSONString, const QString& xTag,
                     const QString& xUnchanged = {});
