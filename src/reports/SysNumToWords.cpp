#include "reports/SysNumToWords.h"

#include "data/Errors.h"

#include <QVarLengthArray>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView ones[] = {
    "ZERO"_L1, "ONE"_L1, "TWO"_L1,   "THREE"_L1, "FOUR"_L1,
    "FIVE"_L1, "SIX"_L1, "SEVEN"_L1, "EIGHT"_L1, "NINE"_L1,
};
constexpr QLatin1StringView teens[] = {
    "TEN"_L1,     "ELEVEN"_L1,  "TWELVE"_L1,    "THIRTEEN"_L1, "FOURTEEN"_L1,
    "FIFTEEN"_L1, "SIXTEEN"_L1, "SEVENTEEN"_L1, "EIGHTEEN"_L1, "NINETEEN"_L1,
};
constexpr QLatin1StringView tens[] = {
    ""_L1,      ""_L1,      "TWENTY"_L1,  "THIRTY"_L1, "FORTY"_L1,
    "FIFTY"_L1, "SIXTY"_L1, "SEVENTY"_L1, "EIGHTY"_L1, "NINETY"_L1,
};
constexpr QLatin1StringView thousands[] = {
    ""_L1, "THOUSAND"_L1, "MILLION"_L1, "BILLION"_L1, "TRILLION"_L1,
};

/// The words of a number, found from its last digit to its first.
class Words
{
public:
    explicit Words(int number)
        : digits_(QByteArray::number(number)) {
        for (qsizetype place = digits_.size(); place-- > 0;) {
            addDigit(place);
        }
    }

    QString text() const {
        QString text;
        text.reserve(found_.size() * 10); // no word and its blank are longer
        for (auto word = found_.crbegin(); word != found_.crend(); ++word) {
            text += *word;
            text += u' ';
        }
        return text;
    }

private:
    void addDigit(qsizetype place) {
        const qsizetype position = digits_.size() - place; // 1 are the units
        const int digit = digitAt(place);
        switch (position % 3) {
        case 0:
            if (digit > 0) {
                found_.append("HUNDRED"_L1);
                found_.append(ones[digit]);
            }
            break;
        case 2:
            if (digit > 0) {
                found_.append(tens[digit]); // of a "teen" only the blank
            }
            break;
        default:
            addUnits(place, digit, thousands[position / 3]);
        }
    }
    void addUnits(qsizetype place, int digit, QLatin1StringView group) {
        const bool first = place == 0;
        const bool teen = !first && digits_[place - 1] == '1';
        const bool silent = digit == 0 && !first && !teen;
        if (!group.isEmpty() && !(silent && groupIsZero(place))) {
            found_.append(group);
        }
        if (!silent) {
            found_.append(teen ? teens[digit] : ones[digit]);
        }
    }
    /// Of a group whose units are 0 and stand at this place.
    bool groupIsZero(qsizetype place) const {
        return digits_[place - 1] == '0' && (place < 2 || digits_[place - 2] == '0');
    }
    int digitAt(qsizetype place) const {
        const char c = digits_[place];
        return c >= '0' && c <= '9' ? c - '0' : StrToInt(QString(QLatin1Char(c)));
    }

    QByteArray digits_;
    QVarLengthArray<QLatin1StringView, 32> found_;
};

/// Fifteen digits, and an exponent that is not filled up.
QString generalText(double number) {
    const QString text = QString::number(number, 'g', 15);
    const auto exponent = text.indexOf(u'e');
    return exponent < 0
               ? text
               : text.left(exponent) + u'E' + QString::number(text.mid(exponent + 1).toInt());
}

int wholePart(double number) {
    using Limits = std::numeric_limits<int>;
    if (!(number > double(Limits::min()) - 1 && number < double(Limits::max()) + 1)) {
        throw VelmaraError(u"Range check error"_s);
    }
    return int(number);
}

} // namespace

QString ntw_GetWords(int xNumber) {
    return Words(xNumber).text();
}

QString ntw_NumToWords(double xNumber) {
    const QString wDecimals = generalText(xNumber * 100).right(2);
    const QString wValue = ntw_GetWords(wholePart(xNumber));
    const QString wCents = ntw_GetWords(StrToInt(wDecimals));
    return wCents.trimmed() == "ZERO"_L1 ? wValue + "RANDS ONLY "_L1
                                         : wValue + "RANDS AND "_L1 + wCents + " CENTS "_L1;
}
