// The panel of buttons at the left of a screen, in titled groups. They scroll where the screen is
// low; what closes the screen stays in sight.
#pragma once

#include "screens/Buttons.h"

#include <QFrame>

class QVBoxLayout;

class ButtonPanel : public QFrame
{
    Q_OBJECT

public:
    /// The keys of the buttons work on the whole form.
    explicit ButtonPanel(QWidget& form);

    void addHeading(const QString& text);
    velcro::ui::KeyButton* add(const ButtonFacts& facts,
                               PlainEnter enter = PlainEnter::PressesButton);
    /// At the foot; nothing can be added after it.
    velcro::ui::KeyButton* addClose(const ButtonFacts& facts);

private:
    QWidget& form_;
    QVBoxLayout* whole_ = nullptr;
    QVBoxLayout* column_ = nullptr;
};
