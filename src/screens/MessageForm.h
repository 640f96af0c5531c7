// What the system's message forms share: a coloured band that says what kind of message it is, the
// text, and a row of large buttons.
#pragma once

#include "screens/Buttons.h"

#include <QColor>
#include <QDialog>

class QHBoxLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QVBoxLayout;

/// How one kind of message looks.
struct MessageLook
{
    const char* unit;    // object name of the form
    const char* caption; // of the window and the band
    const char* picture; // a line icon
    QRgb band;
    QRgb ink;
};

class MessageForm : public QDialog
{
    Q_OBJECT

public:
    explicit MessageForm(const MessageLook& look);

    /// Closes the form by itself after so many milliseconds; 0 or less leaves it open.
    void closeAfter(int milliseconds);

protected:
    QPlainTextEdit* addText(const QString& name, const QString& text, const QString& spoken);
    /// On a line of its own, or beside other facts in a row that the caller gives.
    QLabel* addFact(const QString& name, const QString& title, const QString& value,
                    QHBoxLayout* beside = nullptr);
    QPushButton* addButton(const ButtonFacts& facts);
    /// btnClose, which Enter clicks from anywhere on the form.
    QPushButton* addCloseButton();
    QVBoxLayout& body() { return *body_; }
    QHBoxLayout& buttons() { return *buttons_; }
    /// Places the form in the middle of the screen.
    void centre(int xLeft);
    void showEvent(QShowEvent* event) override;

private:
    QVBoxLayout* body_ = nullptr;
    QHBoxLayout* buttons_ = nullptr;
    int closeAfter_ = 0;
};
