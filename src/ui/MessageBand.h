// The coloured band at the head of a message: a line icon, and what kind of message it is.
#pragma once

#include <QRgb>
#include <QWidget>

namespace velcro::ui {

class MessageBand : public QWidget
{
public:
    MessageBand(const QString& picture, const QString& caption, QRgb band, QRgb ink,
                QWidget* parent);
};

} // namespace velcro::ui
