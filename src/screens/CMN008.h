// TfrmCMN008, which tells the user the right that he lacks.
#pragma once

#include "screens/MessageForm.h"

class TfrmCMN008 : public MessageForm
{
    Q_OBJECT

public:
    TfrmCMN008(const QString& errorNo, const QString& prgName, const QString& routine, int xLeft);
};
