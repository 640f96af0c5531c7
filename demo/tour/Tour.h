// A visitor who walks through the program's real screens as a user would, says what he does, and
// takes a picture of everything he meets.
#pragma once

#include "support/ScreenUser.h"

#include <QDir>

class Tour : public ScreenUser
{
public:
    /// Pictures go into the folder, which is made. Throws when it cannot be.
    explicit Tour(const QString& folder);

    void say(const QString& text);
    /// Saves the form the visitor is in under the next number and this name.
    void picture(const QString& name);

    /// Adds a step of the road. A step that opens a modal form ends when that form is closed.
    void then(const QString& text, Step step);
    /// The next modal form, with this title unless it is blank, gets its picture and then these steps.
    void expect(const QString& title, const QString& name, Step steps);
    /// Walks the road from the main form, in the program's own message loop.
    void start(QWidget& mainForm);

    /// Says so, and fails the tour, when what the road expects is not so.
    void check(bool isSo, const QString& what);

    /// The whole road was walked and everything went as it says.
    bool arrived() const { return failures_ == 0 && road_.empty(); }

protected:
    void fail(const QString& text) override;
    void surprised(QDialog& form) override;

private:
    struct Planned
    {
        QString text;
        Step step;
    };

    void walk();
    /// Fails for what is cut off, off the screen, too small or without a name.
    void judge(QWidget& screen);

    QDir folder_;
    std::deque<Planned> road_;
    int pictures_ = 0;
    int failures_ = 0;
};
