// A user of real screens: types, presses keys, clicks controls by name and answers modal forms, as
// the script says. What the script did not expect is a failure, and is closed, so that no test hangs.
#pragma once

#include <QDialog>
#include <QString>

#include <deque>
#include <functional>
#include <vector>

class ScriptedUser
{
public:
    using Step = std::function<void()>;

    ScriptedUser();
    ~ScriptedUser();
    ScriptedUser(const ScriptedUser&) = delete;
    ScriptedUser& operator=(const ScriptedUser&) = delete;

    /// What the user does when a modal form with this title comes up. Forms come in the order in
    /// which they are expected; a form that is still open after its steps is closed as a failure.
    void expectForm(const QString& title, Step steps);
    /// Shows a screen modally and works in it.
    void workIn(QDialog& screen, Step steps);

    /// The form the user is in.
    QDialog& form();

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& text);
    /// Goes to the control, replaces what is in it.
    void typeInto(const QString& control, const QString& text);
    /// The same from the clipboard.
    void pasteInto(const QString& control, const QString& text);
    void click(const QString& control);

    /// What the control shows: the text of an edit, a combo, a button or a label.
    QString sees(const QString& control);
    /// The message in the status bar of the form; blank when none is shown.
    QString message();
    /// Name of the control that has the focus.
    QString focus();
    /// The texts of a grid's column, as shown, top to bottom; the column by its heading.
    QStringList column(const QString& heading);
    /// What the highlighted row shows in that column.
    QString current(const QString& heading);

    template <typename Control>
    Control& find(const QString& name) {
        auto* control = form().findChild<Control*>(name);
        if (control == nullptr) {
            throw std::runtime_error("no control " + name.toStdString());
        }
        return *control;
    }

private:
    struct Expected
    {
        QString title;
        Step steps;
    };

    void meet(QDialog& form);
    void empty(const QString& control);
    void work(QDialog& form, const Expected& expected);

    std::deque<Expected> expected_;
    std::vector<QDialog*> open_;
};
