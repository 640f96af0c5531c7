// TfrmCMN001, the error form: number, program, routine, text, what the shop can do about it, and a
// way out of the program.
#pragma once

#include "screens/MessageForm.h"

class TfrmCMN001 : public MessageForm
{
    Q_OBJECT

public:
    /// Height of the form when there is nothing to suggest.
    static constexpr int heightWithoutComments = 320;

    /// Takes gErrorComment and gErrorLogMsg as they stand.
    TfrmCMN001(const QString& errorNo, const QString& message, const QString& prgName,
               const QString& routine);

private:
    void addComments(const QString& comment);
    void addStatusBar();
};
