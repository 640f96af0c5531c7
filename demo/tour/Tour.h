// A visitor who walks through the program's real screens as a user would, says what he does, and
// takes a picture of everything he meets.
#pragma once

#include <QDialog>
#include <QDir>
#include <QString>

#include <deque>
#include <functional>
#include <stdexcept>

class Tour
{
public:
    using Step = std::function<void()>;
    using FormStep = std::function<void(QDialog& form)>;

    explicit Tour(const QString& folder);
    ~Tour();
    Tour(const Tour&) = delete;
    Tour& operator=(const Tour&) = delete;

    void say(const QString& text);
    /// Saves the widget under the next number and this name.
    void picture(QWidget& widget, const QString& name);

    /// Adds a step of the road. A step that opens a modal form ends when that form is closed.
    void then(const QString& text, Step step);
    /// The next modal form, with this title unless it is blank, gets its picture and then these steps.
    void expect(const QString& title, const QString& name, FormStep steps);
    /// Walks the road, in the program's own message loop.
    void start();

    void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Letter by letter into the control that has the focus.
    void type(QWidget& form, const QString& text);
    void click(QWidget& form, const QString& button);
    /// Says so, and fails the tour, when what the road expects is not so.
    void check(bool isSo, const QString& what);

    /// Throws when there is no such control on the form; a blank name stands for the only one.
    template <typename Control>
    Control& find(QWidget& form, const QString& name) {
        auto* found = form.findChild<Control*>(name);
        if (found == nullptr) {
            throw std::runtime_error("there is no control " + name.toStdString());
        }
        return *found;
    }

    /// The whole road was walked and everything went as it says.
    bool arrived() const { return failures_ == 0 && road_.empty() && expected_.empty(); }

private:
    struct Expected
    {
        QString title, name;
        FormStep steps;
    };
    struct Planned
    {
        QString text;
        Step step;
    };

    void walk();
    void meet(QDialog& form);
    void fail(const QString& text);

    QDir folder_;
    std::deque<Expected> expected_;
    std::deque<Planned> road_;
    int pictures_ = 0;
    int failures_ = 0;
};
