// Writes a template for a user into the suite database.
#pragma once

#include "platform/fingerprint/FingerprintReader.h"
#include "platform/sqlserver/SqlConnection.h"

#include <string>

namespace velcro::enrol {

struct Finger
{
    std::string user;
    std::string description; // which finger
    int mask = 0;
    std::string text; // of the template
};

/// The user's BioID, 0 without one. Throws SqlError, and std::runtime_error for a user who is not
/// there.
int identityOf(sql::SqlConnection& suite, const std::string& user);

/// Into SYSUserBiometrics, or into SYSBiometricDetl under the user's BioID, which he gets if he has
/// none. Throws as identityOf.
void store(sql::SqlConnection& suite, fingerprint::Family family, const Finger& finger);

} // namespace velcro::enrol
