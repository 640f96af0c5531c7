// Text of files that are written in the letters of a Windows seat, one byte a letter.
#pragma once

#include <QByteArray>
#include <QString>

namespace velcro::seat {

/// In the seat's own code page on Windows, and in code page 1252, that of western Europe, elsewhere.
QString fromAnsi(const QByteArray& bytes);

} // namespace velcro::seat
