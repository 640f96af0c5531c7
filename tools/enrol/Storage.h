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

/// Into SYSUserBiometrics, or into SYSBiometricDetl under the user's BioID, which he gets if he has
/// none. Throws SqlError, and std::runtime_error for a user who is not there.
void store(sql::SqlConnection& suite, fingerprint::Family family, const Finger& finger);

} // namespace velcro::enrol
