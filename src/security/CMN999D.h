// The log-in screen of a seat with a ZKTeco reader.
#pragma once

#include "security/FingerLogIn.h"

class TfrmCMN999D : public FingerLogIn
{
    Q_OBJECT

public:
    TfrmCMN999D();

    /// False, and the status bar says so, when no sensor answers.
    bool ConnectFPSensor();
    /// Compares with the templates of SYSBiometricDetl, in their order, and reads the user of the
    /// one that is the same finger's; tells in the status bar how it ended.
    bool VerifyFPData(const velcro::fingerprint::Print& xFPData);
    /// Reads the user of the matched identity; false when he is gone. A failure is shown.
    bool VerifyUser();

protected:
    bool identify(const velcro::fingerprint::Print& print) override { return VerifyFPData(print); }
    User user() const override { return {userCode_, userPswd_}; }
    void logInRefused() override;
    void connectSensor() override { ConnectFPSensor(); }
    void scanned(int quality) override { ZKFPEngX1FeatureInfo(quality); }

private:
    void ZKFPEngX1FeatureInfo(int AQuality);
    bool isSameFinger(const velcro::fingerprint::Print& xFPData, const QByteArray& stored);
    bool takeMatchedUser(int bioID);

    int bioID_ = 0;
    QString userCode_, username_, userPswd_, supervisor_, superCardNo_, userGroup_;
};
