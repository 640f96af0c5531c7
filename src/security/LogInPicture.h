// A picture of the log-in screen: one of the program's own, or one that the database holds.
#pragma once

#include <QPixmap>
#include <QWidget>

class LogInPicture : public QWidget
{
public:
    /// A picture of the program by its name.
    LogInPicture(const QString& name, Qt::AspectRatioMode fit, QWidget* parent);

    /// Takes the place of the program's own.
    void show(const QPixmap& picture);
    const QPixmap& picture() const { return picture_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString name_;
    Qt::AspectRatioMode fit_;
    QPixmap picture_;
};
