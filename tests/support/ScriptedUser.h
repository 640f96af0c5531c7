// The user of a test: what the script did not expect is a failure of the test.
#pragma once

#include "support/ScreenUser.h"

class ScriptedUser : public ScreenUser
{
public:
    ~ScriptedUser() override;

    /// A test works in dialogs only.
    QDialog& form() const { return dynamic_cast<QDialog&>(ScreenUser::form()); }

protected:
    /// Every screen that any test opens can be heard.
    void met(QDialog& form) override;
    void fail(const QString& text) override;
};
