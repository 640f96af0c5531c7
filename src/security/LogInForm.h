// What the log-in screens have in common: the databases to choose from, and what becomes of a
// password that must not stay.
#pragma once

#include "security/SignInForm.h"

#include <functional>

class QComboBox;
class Statement;

class LogInForm : public SignInForm
{
    Q_OBJECT

public:
    explicit LogInForm(const QString& unit);

protected:
    enum class Offer { CategoriesOfSeat, AllOfSuite };

    void addDatabases();
    void addVersion();
    /// Title, and the state before anything was tried.
    void begin();
    /// Offers the databases of the suite (vcSettings) and selects the one of the last session. False,
    /// and the dialog "900002", where there are none.
    bool loadDatabases(Offer offer);
    void selectDatabase(const QString& xDisplayName);
    const QString& lastDatabase() const { return lastDatabase_; }

    /// Makes the user choose a new password; false when it was turned down.
    static bool changePassword(const QString& userCode);
    /// The default password and one that has expired must be changed. Whoever has both chooses twice.
    static bool passwordMayStay(const QString& password, const std::function<bool()>& change);

    QComboBox* cmbDatabase = nullptr;

private:
    bool fillDatabases(Statement& rows);

    QString lastDatabase_;
};

/// Resets the busy cursor on every way out but the one that leaves it.
class BusyCursor
{
public:
    BusyCursor();
    ~BusyCursor();
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;

    bool keep = false;
};
