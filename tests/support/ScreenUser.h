// Somebody at the screens: types, presses keys, clicks controls by name, reads what is shown, and
// meets modal forms as the road says. Who it is, a test or the tour, says what a failure becomes.
#pragma once

#include <QDialog>
#include <QString>

#include <deque>
#include <functional>
#include <stdexcept>
#include <vector>

class ScreenUser
{
public:
    using Step = std::function<void()>;

    ScreenUser();
    virtual ~ScreenUser();
    ScreenUser(const ScreenUser&) = delete;
    ScreenUser& operator=(const ScreenUser&) = delete;

    /// What the user does when a modal form with this title comes up; a blank title stands for any.
    /// Forms come in the order in which they are expected; a form that is still open after its steps
    /// is closed as a failure, and so is one that nobody expected: nothing hangs.
    void expectForm(const QString& title, Step steps);
    /// Shows a screen modally and works in it.
    void workIn(QDialog& screen, Step steps);

    /// The form the user is in. Throws when he is in none.
    QWidget& form() const;

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Letter by letter into the control that has the focus.
    void type(const QString& text);
    /// Goes to the control, replaces what is in it.
    void typeInto(const QString& control, const QString& text);
    /// The same from the clipboard.
    void pasteInto(const QString& control, const QString& text);
    /// Tab by Tab to the control, as somebody without a mouse gets there.
    void tabTo(const QString& control);
    void click(const QString& control);

    /// What the control shows: the text of an edit, a combo, a button or a label.
    QString sees(const QString& control) const;
    /// The message in the status bar of the form; blank when none is shown.
    QString message() const;
    /// Name of the control that has the focus.
    QString focus() const;
    /// The texts of the visible grid's column, as shown, top to bottom; the column by its heading.
    QStringList column(const QString& heading) const;
    /// What the highlighted row shows in that column.
    QString current(const QString& heading) const;
    /// How many rows the visible grid has.
    int rowCount() const;

    /// Throws when the form has no such control.
    template <typename Control>
    Control& find(const QString& name) const {
        auto* control = form().findChild<Control*>(name);
        if (control == nullptr) {
            throw std::runtime_error("no control " + name.toStdString());
        }
        return *control;
    }

protected:
    virtual void fail(const QString& text) = 0;
    /// A form has come up, before its steps; not called for one that nobody expected.
    virtual void met(QDialog& /*form*/) {}
    /// A form has come up that nobody expected; it is closed afterwards.
    virtual void surprised(QDialog& form);
    /// Fails for each form that was expected and did not come.
    void missExpected();
    /// The form below all modal ones, which the user is in from now on; null when it is gone.
    void standAt(QWidget* form);

private:
    struct Expected
    {
        QString title;
        Step steps;
    };

    void meet(QDialog& form);
    void work(QDialog& form, const Expected& expected);
    void empty(const QString& control);

    std::deque<Expected> expected_;
    std::vector<QWidget*> open_;
};
