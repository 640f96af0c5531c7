#include "support/ScreenUser.h"

#include "ui/Modal.h"
#include "ui/RowGrid.h"
#include "ui/StatusBar.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>

#include <utility>

using velcro::ui::RowGrid;

ScreenUser::ScreenUser() {
    velcro::ui::setModalWatcher([this](QDialog& form) { meet(form); });
}

ScreenUser::~ScreenUser() {
    velcro::ui::setModalWatcher({});
}

void ScreenUser::missExpected() {
    for (const auto& missing : std::exchange(expected_, {})) {
        fail(QStringLiteral("the form \"%1\" never came up").arg(missing.title));
    }
}

void ScreenUser::expectForm(const QString& title, Step steps) {
    expected_.push_back({title, std::move(steps)});
}

void ScreenUser::workIn(QDialog& screen, Step steps) {
    expected_.push_front({screen.windowTitle(), std::move(steps)});
    velcro::ui::runModal(screen);
}

void ScreenUser::standAt(QWidget* form) {
    open_.clear();
    if (form != nullptr) {
        open_.push_back(form);
    }
}

void ScreenUser::meet(QDialog& form) {
    Expected expected;
    if (!expected_.empty() &&
        (expected_.front().title.isEmpty() || expected_.front().title == form.windowTitle())) {
        expected = std::move(expected_.front());
        expected_.pop_front();
        met(form);
    } else {
        surprised(form);
    }
    work(form, expected);
}

void ScreenUser::surprised(QDialog& form) {
    QStringList texts;
    for (const auto* label : form.findChildren<QLabel*>()) {
        texts << label->text();
    }
    for (const auto* memo : form.findChildren<QPlainTextEdit*>()) {
        texts << memo->toPlainText();
    }
    fail(QStringLiteral("nobody expected the form \"%1\": %2")
             .arg(form.windowTitle(), texts.join(QStringLiteral(" | "))));
}

void ScreenUser::work(QDialog& form, const Expected& expected) {
    const QPointer<QDialog> guard(&form);
    const QString title = form.windowTitle();
    open_.push_back(&form);
    form.activateWindow();
    QApplication::processEvents();
    try {
        if (expected.steps) {
            expected.steps();
        }
    } catch (const std::exception& error) {
        fail(QStringLiteral("in \"%1\": %2").arg(title, QString::fromUtf8(error.what())));
    }
    open_.pop_back();
    if (guard && guard->isVisible()) {
        if (expected.steps) {
            fail(QStringLiteral("the form \"%1\" is still open after the last step").arg(title));
        }
        guard->done(QDialog::Rejected); // also a form that only its own buttons end
    }
}

QWidget& ScreenUser::form() const {
    if (open_.empty()) {
        throw std::runtime_error("the user is in no form");
    }
    return *open_.back();
}

// Keys go where a keyboard's would: to the control with the focus.
void ScreenUser::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    auto* target = form().focusWidget() != nullptr ? form().focusWidget() : &form();
    QTest::keyClick(target, key, modifiers);
    QApplication::processEvents();
}

void ScreenUser::type(const QString& text) {
    for (const uint codePoint : text.toUcs4()) {
        const QString letter = QString::fromUcs4(reinterpret_cast<const char32_t*>(&codePoint), 1);
        auto* target = form().focusWidget();
        if (target == nullptr) {
            throw std::runtime_error("typed where nothing has the focus");
        }
        // Sent as an input method does it, so that any letter can be typed.
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
        QApplication::sendEvent(target, &press);
    }
}

void ScreenUser::typeInto(const QString& control, const QString& text) {
    empty(control);
    type(text);
}

void ScreenUser::pasteInto(const QString& control, const QString& text) {
    empty(control);
    QGuiApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

void ScreenUser::empty(const QString& control) {
    auto& widget = find<QWidget>(control);
    if (!widget.isEnabled() || !widget.isVisible()) {
        throw std::runtime_error("cannot type into " + control.toStdString());
    }
    widget.setFocus(Qt::TabFocusReason);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
}

void ScreenUser::tabTo(const QString& control) {
    constexpr int controlsOfAForm = 60;
    for (int i = 0; i < controlsOfAForm && focus() != control; ++i) {
        press(Qt::Key_Tab);
    }
    if (focus() != control) {
        throw std::runtime_error("the tab key does not lead to " + control.toStdString());
    }
}

void ScreenUser::click(const QString& control) {
    auto& widget = find<QWidget>(control);
    if (!widget.isVisible()) {
        throw std::runtime_error("cannot see " + control.toStdString());
    }
    QTest::mouseClick(&widget, Qt::LeftButton);
    QApplication::processEvents();
}

QString ScreenUser::sees(const QString& control) const {
    auto* widget = &find<QWidget>(control);
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        return edit->text();
    }
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        return combo->currentText();
    }
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        return button->text();
    }
    if (auto* memo = qobject_cast<QPlainTextEdit*>(widget)) {
        return memo->toPlainText();
    }
    return find<QLabel>(control).text();
}

QString ScreenUser::message() const {
    const auto& bar = find<velcro::ui::StatusBar>(QStringLiteral("StatusBar"));
    QString shown;
    for (int panel = 1; panel < bar.panelCount(); ++panel) {
        if (bar.panelStyle(panel) == velcro::ui::psOwnerDraw) {
            shown += bar.spokenText(panel);
        }
    }
    return shown;
}

QString ScreenUser::focus() const {
    const auto* widget = form().focusWidget();
    return widget != nullptr ? widget->objectName() : QString();
}

namespace {

int columnOf(const RowGrid& grid, const QString& heading) {
    for (int i = 0; i < grid.rowModel().columnCount(); ++i) {
        if (grid.rowModel().columns()[i].heading() == heading && !grid.isColumnHidden(i)) {
            return i;
        }
    }
    throw std::runtime_error("no visible column " + heading.toStdString());
}

/// The grid the user looks at: of several on pages, the one of the page in front.
const RowGrid& visibleGrid(const QWidget& form) {
    for (const auto* grid : form.findChildren<RowGrid*>()) {
        if (grid->isVisible()) {
            return *grid;
        }
    }
    throw std::runtime_error("no grid is in sight");
}

} // namespace

QStringList ScreenUser::column(const QString& heading) const {
    const auto& grid = visibleGrid(form());
    const int index = columnOf(grid, heading);
    QStringList texts;
    for (int row = 0; row < grid.rowModel().rowCount(); ++row) {
        texts << grid.rowModel().text(row, index);
    }
    return texts;
}

QString ScreenUser::current(const QString& heading) const {
    const auto& grid = visibleGrid(form());
    const auto current = grid.currentIndex();
    return current.isValid() ? grid.rowModel().text(current.row(), columnOf(grid, heading))
                             : QString();
}

int ScreenUser::rowCount() const {
    return visibleGrid(form()).rowModel().rowCount();
}
