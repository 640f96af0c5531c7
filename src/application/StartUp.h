// The start of the program, from the first session value to the signed-in user.
#pragma once

#include <QStringList>

#include <functional>

/// What the start-up calls on its way and other units do.
struct StartUpSteps
{
    /// Makes the hidden working grids on the main form; may be empty.
    std::function<void()> initSystem;
    /// Whether this version may run; asks the user where it differs from the registered one.
    std::function<bool()> checkVersion;
    /// Log-in with given credentials, without a screen; the outcome is also in gLoginResult.
    std::function<bool(const QString& xUserCode, const QString& xUserPswd, int xDBaseRecID,
                       const QString& xCO, const QString& xBranch)>
        silentLogIn;
    /// The log-in screen.
    std::function<bool()> showLogInForm;
};

/// Regional formats, session values, machine configuration, common database, version check and
/// log-in, in this order. True: the menu may go live. False: the user has been told why, or turned
/// it down, and the program is to end. Arguments are those after the program's name; fewer than six
/// are ignored. An unreachable common database and a database number that is no number throw.
bool startUp(const StartUpSteps& steps, const QStringList& arguments);

/// What the command line asks for; all blank without six arguments.
struct LogInArguments
{
    QString user, password, databaseRecID, company, branch;
    QString serverCategory; // the text behind the "%" of the first argument, trimmed
    bool givesServerCategory = false;
};
LogInArguments readCommandLine(const QStringList& arguments);
