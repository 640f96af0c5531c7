#include "ui/DecimalText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace velcro::ui {

namespace {

constexpr int significantDigits = 15; // what a double holds of any decimal number

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Sign and digits of a decimal text; the last `decimals` of the digits stand behind the point.
struct Digits
{
    bool negative = false;
    QString digits;
    qsizetype decimals = 0;

    explicit Digits(QStringView text) {
        negative = text.startsWith(u'-');
        for (const QChar c : text) {
            if (isDigit(c)) {
                digits += c;
            }
        }
        const auto point = text.indexOf(u'.');
        decimals = point < 0 ? 0 : text.size() - point - 1;
    }

    void round(qsizetype wanted) {
        if (wanted >= decimals) {
            digits += QString(wanted - decimals, u'0');
        } else {
            const auto kept = digits.size() - (decimals - wanted);
            const bool up = digits[kept] >= u'5';
            digits.truncate(kept);
            if (up) {
                increment();
            }
        }
        decimals = wanted;
    }
    void increment() {
        for (auto i = digits.size(); i-- > 0;) {
            if (digits[i] != u'9') {
                digits[i] = QChar(digits[i].unicode() + 1);
                return;
            }
            digits[i] = u'0';
        }
        digits.prepend(u'1');
    }
    QString text() const {
        QString shown = digits.rightJustified(decimals + 1, u'0');
        const bool zero =
            std::all_of(shown.begin(), shown.end(), [](QChar c) { return c == u'0'; });
        while (shown.size() > decimals + 1 && shown.startsWith(u'0')) {
            shown.remove(0, 1);
        }
        if (decimals > 0) {
            shown.insert(shown.size() - decimals, u'.');
        }
        return (negative && !zero ? u"-"_s : QString()) + shown;
    }
};

} // namespace

bool isDecimal(const QString& text) {
    const bool sign = text.startsWith(u'-') || text.startsWith(u'+');
    const auto number = QStringView(text).mid(sign ? 1 : 0);
    return number.count(u'.') <= 1 && std::all_of(number.begin(), number.end(),
                                                  [](QChar c) { return isDigit(c) || c == u'.'; });
}

QString decimalText(double number) {
    if (!std::isfinite(number)) {
        return u"0"_s;
    }
    // d.ddde[+-]xx
    std::array<char, 40> buffer;
    const auto end = std::to_chars(buffer.begin(), buffer.end(), number,
                                   std::chars_format::scientific, significantDigits - 1)
                         .ptr;
    const auto text = QString::fromLatin1(buffer.data(), end - buffer.begin());
    Digits digits(text.section(u'e', 0, 0));
    digits.decimals -= text.section(u'e', 1).toInt();
    if (digits.decimals < 0) {
        digits.round(0);
    }
    return plainDecimal(digits.text());
}

QString roundedDecimal(const QString& text, int decimals) {
    Digits digits(text);
    digits.digits.prepend(u'0'); // also ".5" has a digit before the point
    digits.round(decimals);
    return digits.text();
}

QString plainDecimal(const QString& text) {
    QString plain = Digits(text).text();
    if (plain.contains(u'.')) {
        while (plain.endsWith(u'0')) {
            plain.chop(1);
        }
        if (plain.endsWith(u'.')) {
            plain.chop(1);
        }
    }
    return plain;
}

QString moneyText(const QString& text) {
    const QString plain = isDecimal(text) ? plainDecimal(text) : text;
    const auto point = plain.indexOf(u'.');
    const bool isLonger = point >= 0 && plain.size() - point - 1 > 2;
    return isDecimal(text) && !isLonger ? roundedDecimal(plain, 2) : plain;
}

} // namespace velcro::ui
