#include "support/ScreenChecks.h"

#include "ui/RowGrid.h"
#include "ui/Theme.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QWidget>

#include <algorithm>

namespace {

QString described(const QWidget& widget) {
    return QString::fromLatin1(widget.metaObject()->className()) + QLatin1Char(' ') +
           widget.objectName();
}

bool isControl(QAccessible::Role role) {
    switch (role) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::SpinBox:
    case QAccessible::Table:
    case QAccessible::List:
    case QAccessible::PageTabList:
        return true;
    default:
        return false;
    }
}

// Parts that Qt makes for itself inside a control, such as the corner button of a table.
bool isPartOfControl(const QWidget& widget) {
    return widget.objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const QAbstractScrollArea*>(widget.parentWidget()) != nullptr ||
           qobject_cast<const QHeaderView*>(&widget) != nullptr;
}

bool textFits(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->wordWrap() || label->width() >= label->sizeHint().width();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->width() >= button->minimumSizeHint().width() &&
               button->height() >= button->minimumSizeHint().height();
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        return edit->height() >= edit->sizeHint().height();
    }
    if (const auto* grid = qobject_cast<const velcro::ui::RowGrid*>(&widget)) {
        for (int i = 0; i < grid->horizontalHeader()->count(); ++i) {
            if (!grid->isColumnHidden(i) &&
                grid->columnWidth(i) < grid->horizontalHeader()->sectionSizeHint(i)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

QStringList namelessControls(QWidget& screen) {
    QStringList nameless;
    for (auto* widget : screen.findChildren<QWidget*>()) {
        auto* spoken = QAccessible::queryAccessibleInterface(widget);
        if (widget->isVisible() && !isPartOfControl(*widget) && spoken != nullptr &&
            isControl(spoken->role()) && spoken->text(QAccessible::Name).trimmed().isEmpty() &&
            spoken->relations(QAccessible::Label)
                .isEmpty()) { // a combo says its entry, and its label
            nameless << described(*widget);
        }
    }
    return nameless;
}

namespace {

constexpr int childrenLookedAt = 200; // of a grid: its headings and first rows

bool isNamed(const QAccessibleInterface& spoken) {
    return !spoken.text(QAccessible::Name).trimmed().isEmpty() ||
           !spoken.relations(QAccessible::Label).isEmpty();
}

void listen(QAccessibleInterface* spoken, QStringList& faults) {
    if (spoken == nullptr || !spoken->isValid() || spoken->state().invisible) {
        return;
    }
    const auto* widget = qobject_cast<const QWidget*>(spoken->object());
    if (widget != nullptr && isPartOfControl(*widget)) {
        return;
    }
    const auto role = spoken->role();
    // What these hold are the controls.
    const bool isArea = qobject_cast<const QAbstractScrollArea*>(spoken->object()) != nullptr ||
                        qobject_cast<const QTabWidget*>(spoken->object()) != nullptr;
    if (isControl(role) || (spoken->state().focusable && widget != nullptr)) {
        const QString what = widget != nullptr ? described(*widget) : QStringLiteral("a part");
        if (!isNamed(*spoken)) {
            faults << what + QStringLiteral(": has no name");
        }
        if (role == QAccessible::NoRole || (role == QAccessible::Client && !isArea)) {
            faults << what + QStringLiteral(": has no role");
        }
        const QString name = isControl(role) ? spoken->text(QAccessible::Name) : QString();
        if (name.contains(QLatin1Char('&')) && !name.contains(QStringLiteral(" & "))) {
            faults << what + QStringLiteral(": is called ") + name;
        }
    }
    for (int i = 0; i < std::min(spoken->childCount(), childrenLookedAt); ++i) {
        listen(spoken->child(i), faults);
    }
}

} // namespace

QStringList unspokenControls(QWidget& screen) {
    QStringList faults;
    listen(QAccessible::queryAccessibleInterface(&screen), faults);
    return faults;
}

namespace {

constexpr int smallestWidth = 640; // of a screen on which nobody scrolls sideways

// What a scroll area holds may be higher than it is, but not wider.
bool liesInParent(const QWidget& widget) {
    const auto* parent = widget.parentWidget();
    if (qobject_cast<const QScrollArea*>(parent->parentWidget()) != nullptr) {
        return widget.width() <= parent->width() || widget.window()->width() < smallestWidth;
    }
    return parent->rect().contains(widget.geometry());
}

} // namespace

QStringList clippedControls(QWidget& screen) {
    QStringList clipped;
    for (auto* widget : screen.findChildren<QWidget*>()) {
        if (!widget->isVisible() || isPartOfControl(*widget)) {
            continue;
        }
        if (!textFits(*widget)) {
            clipped << described(*widget) + QStringLiteral(": text is cut off");
        }
        if (!liesInParent(*widget)) {
            clipped << described(*widget) + QStringLiteral(": sticks out of its parent");
        }
        for (auto* sibling : widget->parentWidget()->findChildren<QWidget*>(
                 QString(), Qt::FindDirectChildrenOnly)) {
            if (sibling > widget && sibling->isVisible() && !sibling->isWindow() &&
                !isPartOfControl(*sibling) && sibling->geometry().intersects(widget->geometry())) {
                clipped << described(*widget) + QStringLiteral(" lies over ") + described(*sibling);
            }
        }
    }
    return clipped;
}

namespace {

bool isTouched(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr;
}

bool isInCalendar(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    while (parent != nullptr && qobject_cast<const QCalendarWidget*>(parent) == nullptr) {
        parent = parent->parentWidget();
    }
    return parent != nullptr;
}

} // namespace

QStringList smallTargets(QWidget& screen) {
    using velcro::ui::touchHeight;
    QStringList small;
    for (auto* widget : screen.findChildren<QWidget*>()) {
        const bool isPart = isPartOfControl(*widget) || isInCalendar(*widget) ||
                            qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr;
        if (widget->isVisible() && !isPart && isTouched(*widget) &&
            (widget->height() < touchHeight || widget->width() < touchHeight)) {
            small << QStringLiteral("%1: %2x%3 is smaller than a finger")
                         .arg(described(*widget))
                         .arg(widget->width())
                         .arg(widget->height());
        }
    }
    return small;
}

QStringList offScreen(QWidget& screen) {
    const QRect room = screen.screen()->availableGeometry();
    const QRect frame = screen.frameGeometry();
    if (room.contains(frame)) {
        return {};
    }
    return {QStringLiteral("%1x%2 at %3,%4 does not lie on a screen of %5x%6")
                .arg(frame.width())
                .arg(frame.height())
                .arg(frame.left())
                .arg(frame.top())
                .arg(room.width())
                .arg(room.height())};
}

void keepPicture(QWidget& screen, const QString& name) {
    const auto folder = qEnvironmentVariable("VELCRO_PICTURES");
    if (!folder.isEmpty() && QDir().mkpath(folder)) {
        screen.grab().save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
    }
}
