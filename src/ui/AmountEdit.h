// An edit for an amount. What it shows is its value: the decimals it shows are the one rounding there
// is.
#pragma once

#include <QLineEdit>

namespace velcro::ui {

/// Takes digits, a sign in front and one point, typed, pasted or scanned; more decimals than it
/// shows are rounded half away from zero when it is left, or asked. Whatever is no number is refused
/// and leaves what was there. An empty edit is 0.
class AmountEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit AmountEdit(int decimals = 2, QWidget* parent = nullptr);

    int decimals() const { return decimals_; }
    /// Rounds, or fills with zeros, what is shown.
    void setDecimals(int decimals);

    double value() const;
    void setValue(double value);
    /// The value as decimal text without needless zeros, as it goes into a statement, and the
    /// other way round; a text that is no decimal number is 0.
    QString number() const;
    void setNumber(const QString& text);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int decimals_;
    bool clickedIn_ = false;
};

} // namespace velcro::ui
