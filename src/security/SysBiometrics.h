// Finds out whose finger it was, by the templates of SYSUserBiometrics.
#pragma once

#include "platform/fingerprint/FingerprintReader.h"

#include <QByteArray>
#include <QString>

/// The reader that compares; the screen's.
inline velcro::fingerprint::FingerprintReader* sbVerify = nullptr;

/// Of the last comparison: whether it was the same finger, and the false acceptance rate reached.
inline bool sbVerified = false;
inline double sbFar = 0;

/// How sbVerifyID ended: "OK", or what the screen says.
inline QString sbReturnMsg;

/// The user whose finger it was.
inline QString sbUserCode, sbUsername, sbUserPswd, sbSupervisor, sbSuperCardNo, sbUserGroup;

/// A template's text that does not fit its buffer.
class RangeFault : public std::runtime_error
{
public:
    RangeFault()
        : std::runtime_error("Range check error") {}
};

/// Each character's code less that of "0". Throws RangeFault for a character below "0" and for more
/// than 2513 characters.
QByteArray fpStringToByte(const QString& xValue);

/// Compares a captured print (null for none) with every template, in their order, until one is the
/// same finger's and its user is there. pStatus is the reader's own word on the capture.
bool sbVerifyID(const velcro::fingerprint::Print* pFeatureSet, int pStatus);

/// Reads the user sbUserCode; false when he is gone. A failure is shown and thrown on.
bool sbVerifyUser();
