// A seat for one test: fresh embedded databases made from the sample scripts, a machine
// configuration file, working folders of its own, and a session on them.
#pragma once

#include "support/TempFolder.h"

#include <QString>
#include <QStringList>

namespace velcro::test {

class Desk
{
public:
    enum class Start {
        Configured, // session values and machine configuration are there; nothing is connected
        Connected,  // common and suite database open, company 01, branch 100, user COUNTER1
        SignedIn,   // COUNTER1 has gone through the log-in
    };

    /// Throws std::runtime_error when the sample databases cannot be made.
    explicit Desk(Start start = Start::Connected);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Folder of the databases; "embedded:" before it is their server value.
    QString databases() const;
    /// Path of the machine configuration file.
    QString configurationFile() const;
    /// Working folder, where failure files and the session file go; with a trailing separator.
    QString workingFolder() const;

    /// First field of the first row; blank without a row.
    static QString suite(const QString& select);
    static QString common(const QString& select);
    /// Run a statement as another seat would.
    static void onSuite(const QString& statement);
    static void onCommon(const QString& statement);

    /// Texts of the error dialogs and boxes that were shown, as "number|text" and "box|text".
    QStringList shown;

private:
    void takeSample();
    void configure() const;
    static void connect();
    static void logIn();

    TempFolder folder_;
};

/// Fills what the log-in would: the session of a user in a company and branch, with its period.
void signIn(const QString& user, const QString& company, const QString& branch);

} // namespace velcro::test
