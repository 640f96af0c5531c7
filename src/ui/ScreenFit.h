// Windows on small screens: they stay on the screen with their frame, and what does not fit scrolls.
#pragma once

#include <QScrollArea>

namespace velcro::ui {

/// Keeps a window on the screen that it comes up on, its frame included: what is too large shrinks,
/// what sticks out moves. A window manager may put the frame on later; it is followed.
void keepOnScreen(QWidget& window);

/// Scrolls a form that is larger than its window, to wherever the user works.
class ScrollPage : public QScrollArea
{
public:
    explicit ScrollPage(QWidget* form, QWidget* parent = nullptr);

    /// As large as the form, where there is room.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    void bringIntoSight(const QWidget& control);
};

} // namespace velcro::ui
