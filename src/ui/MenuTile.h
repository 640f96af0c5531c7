// A large button of a menu: picture, caption and the key that does the same, readable from a step
// away.
#pragma once

#include <QIcon>
#include <QPushButton>

namespace velcro::ui {

class MenuTile : public QPushButton
{
    Q_OBJECT

public:
    /// The button's own icon is the key cap, in the corner.
    MenuTile(const QString& name, const QString& caption, const QString& picture, const QSize& size,
             QWidget* parent);

    // The style sheet's rules for buttons must not squeeze a tile.
    QSize sizeHint() const override { return size_; }
    QSize minimumSizeHint() const override { return size_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QSize size_;
    QIcon picture_;
    QIcon greyedPicture_;
};

} // namespace velcro::ui
