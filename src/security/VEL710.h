// The technical reference of a screen: which rights, parameters and shortcuts govern it, and how
// they stand for the signed-in user.
#pragma once

#include "platform/sqlserver/RowSet.h"
#include "screens/Screen.h"

class QLineEdit;
class QPlainTextEdit;
class QTabWidget;
class ReferencePage;

class TfrmVEL710 : public Screen
{
    Q_OBJECT

public:
    TfrmVEL710();

    QString xFormCode; // name of the screen's unit

protected:
    void FormShow() override;

private:
    void loadPages();
    ReferencePage* activePage() const;
    void btnSearchClick();
    void btnCloseClick();
    void showNothing();

    QLineEdit* edFormCode = nullptr;
    QLineEdit* edDescription = nullptr;
    QPlainTextEdit* memNotes = nullptr;
    QTabWidget* pages_ = nullptr;
    velcro::ui::KeyButton* btnSearch = nullptr;
};

/// Shows which rights, parameters and shortcuts govern the screen of that unit.
void sfvel_TechHelp(const QString& xFormCode);
