// Picks one of the suite's databases from a list that can be searched by typing.
#pragma once

#include "screens/Screen.h"

class QLineEdit;

namespace velcro::ui {
class RowGrid;
}

class TfrmCMN999E : public Screen
{
    Q_OBJECT

public:
    TfrmCMN999E();

    /// DisplayName of the database; blank when none was chosen.
    const QString& chosen() const { return chosen_; }

protected:
    void FormShow() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void acExit();
    void choose();
    void showFindPanel(const QString& text);

    QString chosen_;
    velcro::ui::RowGrid* grid_ = nullptr;
    QLineEdit* edFind_ = nullptr;
};
