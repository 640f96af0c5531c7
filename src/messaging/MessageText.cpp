#include "messaging/MessageText.h"

#include "data/DateTimeText.h"
#include "data/FailureFile.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "messaging/SysSendSMS.h"

#include <algorithm>
#include <charconv>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int amountDigits = 8;
constexpr int amountDecimals = 2;
constexpr qsizetype longestText = 64 * 1024; // where an endless value stops

/// A number's decimal digits without its point, and where that stands: 12.5 is "125" and 2.
struct Decimals
{
    std::string digits;
    int point = 0;

    explicit Decimals(double number) {
        char text[32]; // d.dddde[+-]xx
        const auto end = std::to_chars(std::begin(text), std::end(text), number,
                                       std::chars_format::scientific, 17)
                             .ptr;
        const std::string all(std::begin(text), end);
        const auto exponent = all.find('e');
        digits = all.substr(0, 1) + all.substr(2, exponent - 2);
        point = std::stoi(all.substr(exponent + 1)) + 1;
    }
    /// Half goes up.
    void round(int kept) {
        const bool up = kept >= 0 && digits[std::size_t(kept)] >= '5';
        digits.resize(std::size_t(std::max(kept, 0)));
        if (!up) {
            return;
        }
        auto place = digits.find_last_not_of('9');
        if (place == std::string::npos) {
            digits.insert(0, 1, '0');
            place = 0;
            ++point;
        }
        ++digits[place];
        std::fill(digits.begin() + std::ptrdiff_t(place) + 1, digits.end(), '0');
    }
    QString fixed() const {
        std::string text = point > 0 ? digits : std::string(std::size_t(1 - point), '0') + digits;
        const auto whole = std::size_t(std::max(point, 1));
        text.resize(whole + amountDecimals, '0');
        return QString::fromStdString(text.insert(whole, "."));
    }
    QString withExponent() const {
        QString text = QString::fromStdString(digits);
        while (text.endsWith(u'0')) {
            text.chop(1);
        }
        if (text.size() > 1) {
            text.insert(1, u'.');
        }
        return text + u'E' + QString::number(point - 1);
    }
};

void tellEndlessValue(const QString& placeholder, const QString& text) {
    writeFailureFile(gLogPath + "SMSTemplate.log"_L1,
                     sfg_DTO() + "\nThe value of "_L1 + placeholder +
                         " holds the placeholder itself; it was put in until the message had "_L1 +
                         QString::number(text.size()) + " letters.\n"_L1 + text);
}

void putIn(QString& text, const QString& placeholder, const QString& value) {
    const QString spaced = u' ' + value + u' ';
    const bool endless = value.contains(placeholder);
    auto at = text.indexOf(placeholder);
    while (at >= 0 && !(endless && text.size() > longestText)) {
        text.replace(at, placeholder.size(), spaced);
        at = text.indexOf(placeholder, at); // nothing new can begin before the blank
    }
    if (at >= 0) {
        tellEndlessValue(placeholder, text);
    }
}

} // namespace

QString messageAmount(double amount) {
    if (!std::isfinite(amount)) {
        return std::isnan(amount) ? u"NAN"_s : amount < 0 ? u"-INF"_s : u"INF"_s;
    }
    Decimals decimals(std::abs(amount));
    const bool fits = decimals.point <= amountDigits;
    decimals.round(fits ? std::min(amountDigits, decimals.point + amountDecimals) : amountDigits);
    const QString text = fits ? decimals.fixed() : decimals.withExponent();
    return amount < 0 && text != "0.00"_L1 ? u'-' + text : text;
}

QString syssms_Make_Message(const QString& xMessage) {
    const QString wDate = sfg_Date(0);
    const QString wCurrDateTime = wDate + u' ' + sfg_Time();
    const std::pair<QString, QString> values[] = {
        {u"@Account#"_s, syssms_Account},
        {u"@AccName#"_s, syssms_AccName},
        {u"@Amount#"_s, messageAmount(syssms_Amount)},
        {u"@TranDate#"_s, syssms_TranDate},
        {u"@CurrDate#"_s, wDate},
        {u"@CurrDateTime#"_s, wCurrDateTime},
        {u"@User#"_s, syssms_User},
        {u"@RefNo#"_s, syssms_RefNo.trimmed()},
        {u"@DocNo#"_s, syssms_DocNo.trimmed()},
        {u"@Details#"_s, syssms_Details.trimmed()},
        {u"@Balance#"_s, messageAmount(syssms_Balance)},
        {u"@OTP#"_s, QString::number(syssms_OTP)},
    };
    QString wText = xMessage;
    for (const auto& [placeholder, value] : values) {
        putIn(wText, placeholder, value);
    }
    return wText.replace(u'&', u'n').replace(u'H', u'h');
}
