// What the small forms that ask for a user code or a password have in common: their place in the
// middle of the screen, their edits for codes and passwords, and OK and Cancel below them.
#pragma once

#include "screens/Screen.h"
#include "ui/FormBuilder.h"

#include <QLineEdit>

class QHBoxLayout;
class QLabel;

class SignInForm : public Screen
{
    Q_OBJECT

public:
    /// Wide enough for the longest refusal in the status bar.
    SignInForm(const QString& unit, const QString& caption, int leastWidth = 740);

    /// "START" while open; how the form ended is in the caller's words "OK", "CANCEL" or "ERROR".
    QString xReturn = QStringLiteral("START");

protected:
    velcro::ui::FormBuilder& form() { return *form_; }
    static constexpr int codeLength = 10;
    static constexpr int anyLength = 0;

    /// Upper case, marked while it has the focus. Enter goes on to the next control unless the form
    /// binds it otherwise.
    QLineEdit* addCode(const QString& name, const QString& label, int limit = codeLength);
    /// The same, shown as "#".
    QLineEdit* addPassword(const QString& name, const QString& label, int limit = codeLength);
    /// What a supervisor is asked to authorise.
    void addRequest();
    void showRequest(const QString& xModCode, int xAccessNo);
    /// In the row below the form.
    velcro::ui::KeyButton* addButton(const ButtonFacts& facts);
    /// Enter in that edit runs the handler in place of going on.
    template <typename Handler>
    void onEnter(QLineEdit* edit, Handler handler) {
        QObject::disconnect(edit, &QLineEdit::returnPressed, nullptr, nullptr);
        velcro::ui::connectHandler(edit, &QLineEdit::returnPressed, this, handler);
    }
    /// Shows a refusal in the status bar and puts the focus where it can be mended.
    void refuse(const QString& message, QWidget* focus);
    void goTo(QWidget* control);
    void finish(const QString& outcome);
    void goOn() { focusNextChild(); }

    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<velcro::ui::FormBuilder> form_;
    QHBoxLayout* buttons_ = nullptr;
    QLabel* request_ = nullptr;
    int leastWidth_;
};
