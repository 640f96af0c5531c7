// A large button for finger and mouse, with the cap of the key that does the same.
#pragma once

#include <QPushButton>

namespace velcro::ui {

/// What Enter does on a button that has the focus: it clicks, once however long it is held. True when
/// the key was such an Enter.
bool clickedByEnter(QAbstractButton& button, const QKeyEvent& event);

class KeyButton : public QPushButton
{
    Q_OBJECT

public:
    /// The one main action of a screen stands out, the dangerous one stands apart.
    enum class Role { Plain, Main, Danger };

    explicit KeyButton(const QString& caption = {}, QWidget* parent = nullptr);

    /// The key as printed on a keyboard: "F10", "INS", "CTRL-P"; an empty one takes the cap away.
    /// The key itself is bound elsewhere.
    void setKeyCap(const QString& key);
    QString keyCap() const { return key_; }

    void setRole(Role role);
    /// Stands in place of caption and cap where room is short.
    void setSymbol(const QIcon& symbol);
    /// For a single sign, such as "?".
    void setRound(bool round);
    /// A button of a vertical panel starts with its cap, so that captions stand in line.
    void setInPanel(bool inPanel);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// The blanks that a caption is spaced with count as one.
    void initStyleOption(QStyleOptionButton* option) const override;

private:
    QString key_;
    QIcon symbol_;
    bool folded_ = false; // to its symbol
};

} // namespace velcro::ui
