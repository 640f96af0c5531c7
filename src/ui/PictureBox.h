// A picture on a form: one of our own by name, or one that was read.
#pragma once

#include <QImage>
#include <QWidget>

namespace velcro::ui {

class PictureBox : public QWidget
{
    Q_OBJECT

public:
    PictureBox(const QString& name, QWidget* parent);

    /// A picture of the program; Qt::KeepAspectRatioByExpanding covers the whole box.
    void setPicture(const QString& name, Qt::AspectRatioMode fit = Qt::KeepAspectRatio);
    void setImage(const QImage& image, Qt::AspectRatioMode fit = Qt::IgnoreAspectRatio);
    const QImage& image() const { return image_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString picture_;
    Qt::AspectRatioMode fit_ = Qt::KeepAspectRatio;
    QImage image_;
    Qt::AspectRatioMode imageFit_ = Qt::IgnoreAspectRatio;
};

} // namespace velcro::ui
