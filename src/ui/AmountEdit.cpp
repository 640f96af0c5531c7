#include "ui/AmountEdit.h"

#include "ui/DecimalText.h"

#include <QKeyEvent>
#include <QValidator>

using namespace Qt::Literals::StringLiterals;

namespace velcro::ui {

namespace {

constexpr int mostDigits = 15; // what a column of the server holds of a number

class AmountLetters : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override {
        if (!isDecimal(input)) {
            const auto trimmed = withoutGroups(input);
            if (!isDecimal(trimmed)) {
                return Invalid;
            }
            input = trimmed;
            position = int(input.size());
        }
        return roundedDecimal(input, 0).size() > mostDigits ? Invalid : Acceptable;
    }

private:
    // A copied " 1,234.50 ". A comma with no point after it may be either mark, and is refused.
    static QString withoutGroups(const QString& input) {
        QString text = input.trimmed();
        const auto point = text.indexOf(u'.');
        if (point > text.lastIndexOf(u',')) {
            text.remove(u',');
        }
        return text;
    }
};

} // namespace

AmountEdit::AmountEdit(int decimals, QWidget* parent)
    : QLineEdit(parent)
    , decimals_(decimals) {
    setAlignment(Qt::AlignRight);
    setValidator(new AmountLetters(this));
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    setNumber({});
}

void AmountEdit::setDecimals(int decimals) {
    decimals_ = decimals;
    setNumber(text());
}

double AmountEdit::value() const {
    return number().toDouble();
}

void AmountEdit::setValue(double value) {
    setNumber(decimalText(value));
}

QString AmountEdit::number() const {
    return plainDecimal(roundedDecimal(text(), decimals_));
}

void AmountEdit::setNumber(const QString& text) {
    const auto number = text.trimmed();
    setText(roundedDecimal(isDecimal(number) ? number : u"0"_s, decimals_));
}

// Whoever comes here types the amount anew, by whatever way he came.
void AmountEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    clickedIn_ = event->reason() == Qt::MouseFocusReason;
    selectAll();
}

void AmountEdit::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(clickedIn_, false) && !hasSelectedText()) {
        selectAll();
    }
}

// Before the base tells those who calculate with it that it was left.
void AmountEdit::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        setNumber(text());
    }
    QLineEdit::focusOutEvent(event);
}

// The point of many a number pad is a comma.
void AmountEdit::keyPressEvent(QKeyEvent* event) {
    if (event->text() == ","_L1 && !isReadOnly()) {
        insert(u"."_s);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace velcro::ui
