// TfrmCMN010, the notice that this program's version is not the registered one.
#pragma once

#include "screens/MessageForm.h"

class TfrmCMN010 : public MessageForm
{
    Q_OBJECT

public:
    TfrmCMN010(const QString& exeVersion, const QString& sysVersion);

    /// "START" while open, "OK" when the program may go on.
    QString xReturn = QStringLiteral("START");

private:
    void btnCloseClick();
    void acIgnoreExecute();
    /// Raises the registered version when the file's is higher.
    bool CheckNewVersion();
    void addKey(const QString& name, const QKeySequence& key, void (TfrmCMN010::*handler)());

    QString xEXEVersion, xSysVersion;
    QString programName_; // as vcVersions has it
};

/// Shows that program and registered version differ; true when the program may go on.
bool sfg_VersionDlg();
