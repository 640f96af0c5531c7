// What went wrong, where the program's own forms cannot tell it: before they are there, and for what
// no handler foresaw.
#pragma once

#include <QDialog>

namespace velcro::ui {

class MessageBox : public QDialog
{
public:
    /// The title stands on the window and on the band. The only button is OK.
    MessageBox(const QString& title, const QString& text, QWidget* parent);
};

void showMessageBox(QWidget* parent, const QString& title, const QString& text);

} // namespace velcro::ui
