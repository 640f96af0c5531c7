#include "ui/DateEdit.h"

#include "ui/Handler.h"
#include "ui/Modal.h"
#include "ui/Theme.h"

#include <QCalendarWidget>
#include <QDialog>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace velcro::ui {

namespace {

constexpr int margins = 12; // around the days

QString dateText(const QDate& date) {
    return date.toString(QStringLiteral("yyyy/MM/dd"));
}

// Year first, as it is stored, with any of the usual separators, or eight digits.
QDate readDate(QString text) {
    text = text.trimmed();
    for (const QChar separator : {QLatin1Char('-'), QLatin1Char('.'), QLatin1Char(' ')}) {
        text.replace(separator, QLatin1Char('/'));
    }
    const auto date = QDate::fromString(text, QStringLiteral("yyyy/M/d"));
    return date.isValid() ? date : QDate::fromString(text, QStringLiteral("yyyyMMdd"));
}

// Days, arrows, month and year for a finger; the arrows have pictures only.
void makeTouchable(QCalendarWidget& calendar) {
    calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar.setMinimumSize(7 * touchHeight + margins, 8 * touchHeight + margins);
    const std::pair<const char*, const char*> parts[] = {
        {"qt_calendar_prevmonth", "Previous Month"},
        {"qt_calendar_nextmonth", "Next Month"},
        {"qt_calendar_monthbutton", "Month"},
        {"qt_calendar_yearbutton", "Year"},
    };
    for (const auto& [name, spoken] : parts) {
        if (auto* button = calendar.findChild<QToolButton*>(QLatin1String(name))) {
            button->setAccessibleName(QLatin1String(spoken));
            button->setMinimumSize(touchHeight, touchHeight);
        }
    }
}

} // namespace

DateEdit::DateEdit(QWidget* parent)
    : QLineEdit(parent) {
    setPlaceholderText(QStringLiteral("yyyy/mm/dd"));
    setToolTip(QStringLiteral("yyyy/mm/dd; Alt+Down opens the calendar"));
    connectHandler(this, &QLineEdit::returnPressed, this, &DateEdit::tidy);
}

QDate DateEdit::date() const {
    return readDate(text());
}

void DateEdit::setDate(const QDate& date) {
    setText(dateText(date));
}

bool DateEdit::isAcceptable() const {
    return text().trimmed().isEmpty() || date().isValid();
}

bool DateEdit::tidy() {
    if (!isModified()) {
        return true;
    }
    if (const auto typed = date(); typed.isValid()) {
        if (text() != dateText(typed)) { // or cursor and selection would jump
            setDate(typed);
        }
    } else if (!isAcceptable()) {
        emit dateRefused(text());
        return false;
    }
    return true;
}

void DateEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::MouseFocusReason) {
        guarded([this] { tidy(); });
    }
}

void DateEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier) {
        guarded([this] { pickDate(); });
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void DateEdit::pickDate() {
    QDialog popup(this, Qt::Popup);
    popup.setObjectName(QStringLiteral("Calendar"));
    popup.setAccessibleName(QStringLiteral("Calendar"));
    popup.setAttribute(Qt::WA_NoMouseReplay); // the tap beside it closes it and does no more
    auto* layout = new QVBoxLayout(&popup);
    layout->setContentsMargins(2, 2, 2, 2);
    auto* calendar = new QCalendarWidget(&popup);
    calendar->setAccessibleName(QStringLiteral("Calendar"));
    calendar->setSelectedDate(date().isValid() ? date() : QDate::currentDate());
    makeTouchable(*calendar);
    layout->addWidget(calendar);
    connectHandler(calendar, &QCalendarWidget::activated, &popup, &QDialog::accept);
    connectHandler(calendar, &QCalendarWidget::clicked, &popup, &QDialog::accept);
    calendar->setFocus(); // the days, not the heading above them
    popup.move(mapToGlobal(QPoint(0, height())));
    if (runModal(popup) == QDialog::Accepted) {
        setDate(calendar->selectedDate());
        emit textEdited(text());
    }
}

} // namespace velcro::ui
