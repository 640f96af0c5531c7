// A framed group with a caption bar on top; frame and bar share one colour.
#pragma once

#include <QColor>
#include <QWidget>

class QVBoxLayout;

namespace velcro::ui {

class CaptionPanel : public QWidget
{
    Q_OBJECT

public:
    CaptionPanel(const QString& name, const QString& caption, int captionHeight, QWidget* parent);

    QString caption() const { return caption_; }
    QColor color() const { return color_; }
    void setColor(const QColor& color);
    /// What the group holds goes here, below the caption bar.
    QVBoxLayout& body() { return *body_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString caption_;
    QColor color_;
    int captionHeight_;
    QVBoxLayout* body_;
};

} // namespace velcro::ui
