// A money amount in the words that are printed on a document, in capitals and always in rands.
#pragma once

#include <QString>

/// "FIVE RANDS AND FIFTY  CENTS ": with the blanks that documents have always had, before and after.
/// Rands are a signed 32-bit number; throws VelmaraError beyond. Throws ConversionError for negative
/// amounts and for more than two decimals.
QString ntw_NumToWords(double xNumber);

/// A whole number: "ONE THOUSAND TWENTY ". Every word has a blank after it, and a "teen" one more
/// before it. Throws ConversionError when it is negative.
QString ntw_GetWords(int xNumber);
