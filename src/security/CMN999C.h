// The log-in screen of a seat with a DigitalPersona reader.
#pragma once

#include "security/FingerLogIn.h"

class TfrmCMN999C : public FingerLogIn
{
    Q_OBJECT

public:
    TfrmCMN999C();
    ~TfrmCMN999C() override;

protected:
    bool identify(const velcro::fingerprint::Print& print) override;
    User user() const override;
    void logInRefused() override;
    void connectSensor() override;
    void scanned(int quality) override;
};
