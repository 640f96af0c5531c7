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

int identityOf(sql::SqlConnection& suite, const std::string& user) {
    const auto row = suite.query("SELECT BioID FROM SYSUser WHERE UserCode = " + quoted(user));
    if (row.rowCount() == 0) {
        throw std::runtime_error("There is no user " + user + ".");
    }
    const std::string identity(row.text(0, 0));
    if (!identity.empty() && identity != "0") {
        return std::stoi(identity);
    }
    suite.execute("UPDATE SYSUser SET BioID = (SELECT MAX(BioID) + 1 FROM SYSUser)"
                  " WHERE UserCode = " +
                  quoted(user));
    return identityOf(suite, user);
}

} // namespace

void store(sql::SqlConnection& suite, fingerprint::Family family, const Finger& finger) {
    suite.begin();
    try {
        const int identity = identityOf(suite, finger.user);
        if (family == fingerprint::Family::DigitalPersona) {
            suite.execute("INSERT INTO SYSUserBiometrics (UserCode, FPDescription, FPMask, FPData)"
                          " VALUES (" +
                          quoted(finger.user) + ", " + valuesOf(finger) + quoted(finger.text) +
                          ")");
        } else {
            suite.execute("INSERT INTO SYSBiometricDetl (BioID, FPDescription, FPMask, FPData)"
                          " VALUES (" +
                          std::to_string(identity) + ", " + valuesOf(finger) + "CAST(" +
                          quoted(finger.text) + " AS varbinary(max)))");
        }
        suite.commit();
    } catch (...) {
        suite.rollback();
        throw;
    }
}

} // namespace velcro::enrol
