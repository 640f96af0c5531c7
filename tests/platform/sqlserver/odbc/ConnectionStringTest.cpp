#include "platform/sqlserver/odbc/ConnectionString.h"
#include "platform/sqlserver/odbc/Diagnostics.h"

#include <gtest/gtest.h>

using namespace velcro::sql;
using namespace velcro::sql::odbc;

TEST(ConnectionStringTest, theVendorsNewestDriverWins) {
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"FreeTDS", "ODBC Driver 9 for SQL Server", "ODBC Driver 18 for SQL Server", "SQLite3",
          "SQL Server Native Client 11.0", "ODBC Driver 17 for SQL Server"},
         "ODBC Driver 18 for SQL Server"},
        {{"FreeTDS", "SQL Server Native Client 10.0", "SQL Server Native Client 11.0"},
         "SQL Server Native Client 11.0"},
        {{"SQLite3", "ODBC Driver 8.0 for Something", "FreeTDS"}, "FreeTDS"},
        {{"SQLite3", "PostgreSQL Unicode"}, ""},
    };
    for (const auto& [names, chosen] : cases) {
        EXPECT_EQ(chooseDriver(names).value_or(Driver()).name, chosen);
    }
}

TEST(ConnectionStringTest, serversAreUnderstoodInEachForm) {
    struct Case
    {
        const char* server;
        const char* freeTds;
        const char* vendor;
    };
    const Case cases[] = {
        {"shop", "Server=shop;Port=1433;", "Server=shop;"},
        {" shop , 1500 ", "Server=shop;Port=1500;", "Server={shop,1500};"},
        {"tcp:10.0.0.5,1500", "Server=10.0.0.5;Port=1500;", "Server={10.0.0.5,1500};"},
        {"shop\\TILL", "Server=shop\\TILL;APP", "Server=shop\\TILL;"},
        {".\\TILL", "Server=localhost\\TILL;APP", "Server=localhost\\TILL;"},
        {"(local)", "Server=localhost;Port=1433;", "Server=localhost;"},
    };
    for (const auto& [server, freeTds, vendor] : cases) {
        ConnectionSettings settings;
        settings.server = server;
        const auto forFreeTds = connectionString(settings, {"FreeTDS", DriverKind::FreeTds});
        const auto forVendor = connectionString(settings, {"X", DriverKind::Vendor});
        EXPECT_NE(forFreeTds.find(freeTds), std::string::npos) << forFreeTds;
        EXPECT_NE(forVendor.find(vendor), std::string::npos) << forVendor;
    }
}

TEST(ConnectionStringTest, valuesCannotBreakOutOfTheirPlace) {
    ConnectionSettings settings;
    settings.server = "shop";
    settings.database = "Suite DB";
    settings.user = "till";
    settings.password = "a;Server=x}";
    const auto vendor = connectionString(settings, {"X", DriverKind::Vendor});
    EXPECT_NE(vendor.find("Database={Suite DB};UID=till;PWD={a;Server=x}}};"), std::string::npos);
    const auto freeTds = connectionString(settings, {"X", DriverKind::FreeTds});
    EXPECT_NE(freeTds.find("PWD={a;Server=x}};"), std::string::npos);
    settings = {.server = "odbc:Driver=Q;Trace=1", .database = "d"};
    EXPECT_EQ(connectionString(settings, {}), "Driver=Q;Trace=1;Database=d;");
}

TEST(ConnectionStringTest, textsOfErrorsAreTheServersOwnAndShowNoPassword) {
    EXPECT_EQ(
        withoutPrefixes("[Microsoft][ODBC Driver 18 for SQL Server][SQL Server][dbo].x is bad"),
        "[dbo].x is bad");
    EXPECT_EQ(withoutPrefixes("[FreeTDS][SQL Server]Login failed."), "Login failed.");
    EXPECT_EQ(withoutPrefixes("[unixODBC][Driver Manager] no driver"), "no driver");
    EXPECT_EQ(withoutPrefixes("[never closed"), "[never closed");
    EXPECT_EQ(withoutPassword("bad PWD=secret;UID=x, secret", "secret"), "bad PWD=***;UID=x, ***");
    EXPECT_EQ(withoutPassword("open PWD=ab", "ab"), "open PWD=***");
}
