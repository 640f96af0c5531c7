// An edit for a date: typed as text or picked from a calendar, and it may be empty.
#pragma once

#include <QDate>
#include <QLineEdit>

namespace velcro::ui {

/// The text is what counts. Leaving the edit brings a date that was typed and can be read into the
/// form yyyy/MM/dd; anything else stays as it was typed and is told by dateRefused(). A text that was
/// set and not touched is nobody's mistake and stays as it is.
class DateEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit DateEdit(QWidget* parent = nullptr);

    /// Empty, or a date.
    bool isAcceptable() const;
    /// Invalid when the text is no date.
    QDate date() const;
    void setDate(const QDate& date);
    /// What leaving the edit does; false after a refusal.
    bool tidy();
    /// Opens the calendar below the edit.
    void pickDate();

signals:
    void dateRefused(const QString& text);

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace velcro::ui
