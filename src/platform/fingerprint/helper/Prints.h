// libfprint's prints as the texts that the tables of the suite hold.
#pragma once

#include "platform/fingerprint/helper/Glib.h"

#include <QByteArray>

namespace velcro::fingerprint {

/// The first reader of this seat that can tell fingers apart; null, and why in failure, without
/// one. It lives as long as the context.
FpDevice* firstReader(FpContext& context, QByteArray& failure);

/// Blank when it is too long for the tables.
QByteArray textOf(FpPrint& print);
/// Null for what is no print of this reader.
Owned<FpPrint> printOf(const QByteArray& text, FpDevice& reader);

/// How many features were found in the picture the print was taken from, 100 at most.
int qualityOf(FpPrint& print);

} // namespace velcro::fingerprint
