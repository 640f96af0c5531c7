#include "screens/ButtonPanel.h"

#include "ui/Theme.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

using velcro::ui::KeyButton;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int margin = 8;

/// Buttons below each other, as wide as their captions want.
class ButtonArea : public QScrollArea
{
public:
    explicit ButtonArea(QWidget* parent)
        : QScrollArea(parent) {
        auto* inside = new QWidget;
        column_ = new QVBoxLayout(inside);
        column_->setContentsMargins(margin, margin, margin, margin);
        setObjectName(u"scrOptions"_s);
        setWidget(inside);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    }
    QVBoxLayout* column() { return column_; }

    // A button that is hidden now has its room already.
    QSize sizeHint() const override {
        int width = 0;
        for (const auto* button : findChildren<KeyButton*>()) {
            width = std::max(width, button->sizeHint().width());
        }
        const int height = column_->sizeHint().height();
        const bool scrolls = isVisible() && this->height() < height;
        return {width + 2 * margin + (scrolls ? verticalScrollBar()->sizeHint().width() : 0),
                height};
    }
    QSize minimumSizeHint() const override {
        return {sizeHint().width(), 3 * velcro::ui::touchHeight};
    }

protected:
    // Room for the scroll bar comes and goes with it.
    void resizeEvent(QResizeEvent* event) override {
        QScrollArea::resizeEvent(event);
        updateGeometry();
    }

private:
    QVBoxLayout* column_;
};

} // namespace

ButtonPanel::ButtonPanel(QWidget& form)
    : QFrame(&form)
    , form_(form) {
    setObjectName(u"pnlOptions"_s);
    whole_ = new QVBoxLayout(this);
    whole_->setContentsMargins(0, 0, 0, margin);
    auto* area = new ButtonArea(this);
    column_ = area->column();
    whole_->addWidget(area, 1);
}

void ButtonPanel::addHeading(const QString& text) {
    auto* label = new QLabel(text, this);
    label->setProperty("role", "heading");
    label->setContentsMargins(0, column_->isEmpty() ? 0 : 2 * margin, 0, 0);
    column_->addWidget(label);
}

KeyButton* ButtonPanel::add(const ButtonFacts& facts, PlainEnter enter) {
    auto* button = makeButton(form_, facts, enter);
    button->setInPanel(true);
    column_->addWidget(button);
    return button;
}

KeyButton* ButtonPanel::addClose(const ButtonFacts& facts) {
    column_->addStretch(1);
    auto* button = makeButton(form_, facts);
    button->setInPanel(true);
    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(margin, 0, margin, 0);
    foot->addWidget(button);
    whole_->addLayout(foot);
    return button;
}
