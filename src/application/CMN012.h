// TfrmCMN012, the count-down that an idle seat shows before it ends.
#pragma once

#include "screens/MessageForm.h"

#include <QTimer>

class QProgressBar;

class TfrmCMN012 : public MessageForm
{
    Q_OBJECT

public:
    static constexpr int countFrom = 10;

    TfrmCMN012();

    /// One second less; below one the program ends. The timer calls it.
    void tick();
    int sCnt() const { return sCnt_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void returnToApplication();

    int sCnt_ = countFrom;
    QTimer Timer1_{this};
    QProgressBar* gauge_ = nullptr;
};

/// Shows the count-down; returns when the user came back.
void sfg_Application_ShutDown();
