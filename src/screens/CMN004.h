// TfrmCMN004, the question that is answered by yes or no.
#pragma once

#include "screens/MessageForm.h"

class TfrmCMN004 : public MessageForm
{
    Q_OBJECT

public:
    TfrmCMN004(const QString& title, const QString& message);

    /// False until Yes is chosen.
    bool answer() const { return answer_; }

private:
    void choose(bool yes);

    bool answer_ = false;
};
