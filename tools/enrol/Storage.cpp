#include "Storage.h"

#include <stdexcept>

namespace velcro::enrol {

namespace {

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char character : text) {
        result += character == '\'' ? "''" : std::string(1, character);
    }
    return result + "'";
}

std::string valuesOf(const Finger& finger) {
    return quoted(finger.description) + ", " + std::to_string(finger.mask) + ", ";
}

int ownIdentityOf(sql::SqlConnection& suite, const std::string& user) {
    if (const int identity = identityOf(suite, user); identity != 0) {
        return identity;
    }
    suite.execute("UPDATE SYSUser SET BioID = (SELECT MAX(BioID) + 1 FROM SYSUser)"
                  " WHERE UserCode = " +
                  quoted(user));
    return identityOf(suite, user);
}

} // namespace

int identityOf(sql::SqlConnection& suite, const std::string& user) {
    const auto row = suite.query("SELECT BioID FROM SYSUser WHERE UserCode = " + quoted(user));
    if (row.rowCount() == 0) {
        throw std::runtime_error("There is no user " + user + ".");
    }
    return row.isNull(0, 0) ? 0 : std::stoi(std::string(row.text(0, 0)));
}

void store(sql::SqlConnection& suite, fingerprint::Family family, const Finger& finger) {
    suite.begin();
    try {
        if (family == fingerprint::Family::DigitalPersona) {
            suite.execute("INSERT INTO SYSUserBiometrics (UserCode, FPDescription, FPMask, FPData)"
                          " VALUES (" +
                          quoted(finger.user) + ", " + valuesOf(finger) + quoted(finger.text) +
                          ")");
        } else {
            suite.execute("INSERT INTO SYSBiometricDetl (BioID, FPDescription, FPMask, FPData)"
                          " VALUES (" +
                          std::to_string(ownIdentityOf(suite, finger.user)) + ", " +
                          valuesOf(finger) + "CAST(" + quoted(finger.text) +
                          " AS varbinary(max)))");
        }
        suite.commit();
    } catch (...) {
        suite.rollback();
        throw;
    }
}

} // namespace velcro::enrol
