// Decimal numbers as the texts that people see. Rounding works on these digits, never on the binary
// number behind them: 2.675 to two decimals is 2.68.
#pragma once

#include <QString>

namespace velcro::ui {

/// Whether the text is digits with at most one point among them, after an optional sign.
bool isDecimal(const QString& text);

/// The number to fifteen digits, in plain notation without needless zeros: 0.1 + 0.2 is "0.3". What
/// is no number is "0".
QString decimalText(double number);

/// A decimal text with so many decimals, rounded half away from zero, filled with zeros; "" and "-"
/// are 0. The text may have any number of digits.
QString roundedDecimal(const QString& text, int decimals);

/// A decimal text without needless zeros: "-007.50" is "-7.5", "-0.0" is "0".
QString plainDecimal(const QString& text);

/// A decimal text with two decimals, or more where it has more: "0.00", "12.075". Any other text stays.
QString moneyText(const QString& text);

} // namespace velcro::ui
