#include "platform/sqlserver/odbc/DriverChoice.h"

#include "platform/sqlserver/Utf16.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace velcro::sql::odbc {

namespace {

/// The number behind prefix in name; 0 without one; nothing where name begins otherwise.
std::optional<int> version(std::string_view name, std::string_view prefix) {
    if (!name.starts_with(prefix)) {
        return std::nullopt;
    }
    name.remove_prefix(prefix.size());
    name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
    int number = 0;
    std::from_chars(name.data(), name.data() + name.size(), number);
    return number;
}

std::optional<std::string> newest(const std::vector<std::string>& names, std::string_view prefix,
                                  std::string_view suffix) {
    std::optional<std::string> best;
    int bestVersion = -1;
    for (const auto& name : names) {
        const auto found = version(name, prefix);
        if (found && *found > bestVersion && name.ends_with(suffix)) {
            best = name;
            bestVersion = *found;
        }
    }
    return best;
}

} // namespace

std::vector<std::string> installedDrivers(SQLHANDLE environment) {
    std::vector<std::string> names;
    char16_t name[256] = {};
    char16_t attributes[1024] = {};
    SQLSMALLINT nameLength = 0;
    SQLSMALLINT attributesLength = 0;
    auto direction = SQL_FETCH_FIRST;
    while (SQL_SUCCEEDED(SQLDriversW(environment, static_cast<SQLUSMALLINT>(direction), wide(name),
                                     std::size(name), &nameLength, wide(attributes),
                                     std::size(attributes), &attributesLength))) {
        names.push_back(toUtf8(std::u16string_view(name)));
        direction = SQL_FETCH_NEXT;
    }
    return names;
}

std::optional<Driver> chooseDriver(const std::vector<std::string>& names) {
    if (const auto name = newest(names, "ODBC Driver", "for SQL Server")) {
        return Driver{*name, DriverKind::Vendor};
    }
    if (const auto name = newest(names, "SQL Server Native Client", "")) {
        return Driver{*name, DriverKind::Vendor};
    }
    if (const auto name = newest(names, "FreeTDS", "")) {
        return Driver{*name, DriverKind::FreeTds};
    }
    return std::nullopt;
}

DriverKind kindOfLibrary(std::string fileName) {
    std::transform(fileName.begin(), fileName.end(), fileName.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    if (fileName.find("tdsodbc") != std::string::npos) {
        return DriverKind::FreeTds;
    }
    const bool vendor = fileName.find("msodbcsql") != std::string::npos ||
                        fileName.find("sqlncli") != std::string::npos;
    return vendor ? DriverKind::Vendor : DriverKind::Other;
}

} // namespace velcro::sql::odbc
