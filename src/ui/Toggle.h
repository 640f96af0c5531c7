// A switch that says in words how it stands.
#pragma once

#include <QCheckBox>

namespace velcro::ui {

/// Space, a click or a tap turns it. Its text is the caption of its state.
class Toggle : public QCheckBox
{
    Q_OBJECT

public:
    Toggle(const QString& onCaption, const QString& offCaption, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }
    void paintEvent(QPaintEvent* event) override;

private:
    void showState(bool on);

    QString onCaption_;
    QString offCaption_;
};

} // namespace velcro::ui
