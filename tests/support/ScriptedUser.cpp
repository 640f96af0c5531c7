#include "support/ScriptedUser.h"

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
#include <gtest/gtest.h>

#include <utility>

using velcro::ui::RowGrid;

ScriptedUser::ScriptedUser() {
    velcro::ui::setModalWatcher([this](QDialog& form) { meet(form); });
}

ScriptedUser::~ScriptedUser() {
    velcro::ui::setModalWatcher({});
    for (const auto& missing : expected_) {
        ADD_FAILURE() << "the form \"" << missing.title.toStdString() << "\" never came up";
    }
}

void ScriptedUser::expectForm(const QString& title, Step steps) {
    expected_.push_back({title, std::move(steps)});
}

void ScriptedUser::workIn(QDialog& screen, Step steps) {
    expected_.push_front({screen.windowTitle(), std::move(steps)});
    velcro::ui::runModal(screen);
}

void ScriptedUser::meet(QDialog& form) {
    Expected expected;
    if (!expected_.empty() && expected_.front().title == form.windowTitle()) {
        expected = std::move(expected_.front());
        expected_.pop_front();
    } else {
        QStringList texts;
        for (const auto* label : form.findChildren<QLabel*>()) {
            texts << label->text();
        }
        for (const auto* memo : form.findChildren<QPlainTextEdit*>()) {
            texts << memo->toPlainText();
        }
        ADD_FAILURE() << "nobody expected the form \"" << form.windowTitle().toStdString()
                      << "\": " << texts.join(" | ").toStdString();
    }
    work(form, expected);
}

void ScriptedUser::work(QDialog& form, const Expected& expected) {
    const QPointer<QDialog> guard(&form);
    open_.push_back(&form);
    form.activateWindow();
    QApplication::processEvents();
    try {
        if (expected.steps) {
            expected.steps();
        }
    } catch (const std::exception& error) {
        ADD_FAILURE() << "in \"" << form.windowTitle().toStdString() << "\": " << error.what();
    }
    open_.pop_back();
    if (guard && guard->isVisible()) {
        EXPECT_FALSE(expected.steps) << "the form \"" << expected.title.toStdString()
                                     << "\" is still open after the last step";
        guard->done(QDialog::Rejected); // also a form that only its own buttons end
    }
}

QDialog& ScriptedUser::form() {
    if (open_.empty()) {
        throw std::runtime_error("the user is in no form");
    }
    return *open_.back();
}

// Keys go where a keyboard's would: to the control with the focus.
void ScriptedUser::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    auto* target = form().focusWidget() != nullptr ? form().focusWidget() : &form();
    QTest::keyClick(target, key, modifiers);
    QApplication::processEvents();
}

void ScriptedUser::type(const QString& text) {
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

void ScriptedUser::typeInto(const QString& control, const QString& text) {
    empty(control);
    type(text);
}

void ScriptedUser::pasteInto(const QString& control, const QString& text) {
    empty(control);
    QGuiApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

void ScriptedUser::empty(const QString& control) {
    auto& widget = find<QWidget>(control);
    if (!widget.isEnabled() || !widget.isVisible()) {
        throw std::runtime_error("cannot type into " + control.toStdString());
    }
    widget.setFocus(Qt::TabFocusReason);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
}

void ScriptedUser::click(const QString& control) {
    auto& widget = find<QWidget>(control);
    if (!widget.isVisible()) {
        throw std::runtime_error("cannot see " + control.toStdString());
    }
    QTest::mouseClick(&widget, Qt::LeftButton);
    QApplication::processEvents();
}

QString ScriptedUser::sees(const QString& control) {
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

QString ScriptedUser::message() {
    const auto& bar = find<velcro::ui::StatusBar>(QStringLiteral("StatusBar"));
    QString shown;
    for (int panel = 1; panel < bar.panelCount(); ++panel) {
        if (bar.panelStyle(panel) == velcro::ui::psOwnerDraw) {
            shown += bar.spokenText(panel);
        }
    }
    return shown;
}

QString ScriptedUser::focus() {
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

} // namespace

namespace {

/// The grid the user looks at: of several on pages, the one of the page in front.
const RowGrid& visibleGrid(QDialog& form) {
    for (const auto* grid : form.findChildren<RowGrid*>()) {
        if (grid->isVisible()) {
            return *grid;
        }
    }
    throw std::runtime_error("no grid is in sight");
}

} // namespace

QStringList ScriptedUser::column(const QString& heading) {
    const auto& grid = visibleGrid(form());
    const int index = columnOf(grid, heading);
    QStringList texts;
    for (int row = 0; row < grid.rowModel().rowCount(); ++row) {
        texts << grid.rowModel().text(row, index);
    }
    return texts;
}

QString ScriptedUser::current(const QString& heading) {
    const auto& grid = visibleGrid(form());
    const auto current = grid.currentIndex();
    return current.isValid() ? grid.rowModel().text(current.row(), columnOf(grid, heading))
                             : QString();
}
