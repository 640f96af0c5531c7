#include "platform/sqlserver/odbc/Diagnostics.h"

#include "platform/sqlserver/Utf16.h"

#include <algorithm>

namespace velcro::sql::odbc {

namespace {

// Fields of SQL Server's drivers beyond the standard ones.
constexpr SQLSMALLINT messageStateField = -1150;
constexpr SQLSMALLINT severityField = -1151;
constexpr SQLSMALLINT lineField = -1154;

/// The driver's own field as a number; 0 where the driver does not know it.
int ownField(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT record, SQLSMALLINT field) {
    SQLINTEGER value = 0;
    const auto code = SQLGetDiagFieldW(type, handle, record, field, &value, sizeof value, nullptr);
    return SQL_SUCCEEDED(code) ? value : 0;
}

void readOwnFields(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT record, SqlMessage& message) {
    int state = ownField(type, handle, record, messageStateField);
    int level = ownField(type, handle, record, severityField);
    if (level == 0) {
        std::swap(state, level); // FreeTDS has one of the two, and gives the severity as the state
    }
    message.level = level > 0 ? level : message.level;
    message.state = state > 0 ? state : message.state;
    message.line = ownField(type, handle, record, lineField);
}

std::optional<Diagnostic> readRecord(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT record) {
    char16_t state[6] = {};
    SQLINTEGER native = 0;
    std::u16string text(1024, u'\0');
    SQLSMALLINT length = 0;
    const auto read = [&] {
        return SQLGetDiagRecW(type, handle, record, wide(state), &native, wide(text.data()),
                              static_cast<SQLSMALLINT>(text.size()), &length);
    };
    auto code = read();
    if (code == SQL_SUCCESS_WITH_INFO && length >= static_cast<SQLSMALLINT>(text.size())) {
        text.resize(static_cast<std::size_t>(length) + 1);
        code = read();
    }
    if (!SQL_SUCCEEDED(code)) {
        return std::nullopt;
    }
    text.resize(std::min(text.size(), static_cast<std::size_t>(std::max<int>(length, 0))));
    Diagnostic result{toUtf8(std::u16string_view(state, 5)), {}};
    result.message.number = native;
    result.message.text = withoutPrefixes(toUtf8(text));
    readOwnFields(type, handle, record, result.message);
    if (result.sqlState.starts_with("01") || result.sqlState == "00000") {
        result.message.level = 0;
    }
    return result;
}

} // namespace

bool isError(const Diagnostic& diagnostic) {
    return diagnostic.message.level > 10;
}

std::vector<Diagnostic> diagnostics(SQLSMALLINT handleType, SQLHANDLE handle, bool failed) {
    std::vector<Diagnostic> all;
    for (SQLSMALLINT record = 1; auto read = readRecord(handleType, handle, record); ++record) {
        all.push_back(std::move(*read));
    }
    if (failed && all.empty()) {
        all.push_back({"HY000", {.text = "The driver reported a failure without saying why."}});
    }
    if (failed && std::none_of(all.begin(), all.end(), isError)) {
        all.front().message.level = SqlMessage().level;
    }
    return all;
}

const Diagnostic& decisive(const std::vector<Diagnostic>& all) {
    const auto lost = std::find_if(all.begin(), all.end(),
                                   [](const Diagnostic& d) { return isLossState(d.sqlState); });
    return lost != all.end() ? *lost : *std::find_if(all.begin(), all.end(), isError);
}

const Diagnostic& connectCause(const std::vector<Diagnostic>& all) {
    auto found = std::find_if(all.begin(), all.end(),
                              [](const Diagnostic& d) { return d.message.number != 0; });
    if (found == all.end()) {
        found = std::find_if(all.begin(), all.end(),
                             [](const Diagnostic& d) { return d.sqlState != "08001"; });
    }
    return found == all.end() ? all.front() : *found;
}

Diagnostic asLoss(Diagnostic said) {
    said.message.text = "The connection to the server was lost.\r" + said.message.text;
    return said;
}

bool isLossState(std::string_view sqlState) {
    return sqlState == "08S01" || sqlState == "08001" || sqlState == "08003" || sqlState == "08007";
}

std::string withoutPrefixes(std::string_view text) {
    while (text.starts_with('[')) {
        const auto close = text.find(']');
        if (close == std::string_view::npos) {
            break;
        }
        const bool serverItself = text.substr(0, close + 1) == "[SQL Server]";
        text.remove_prefix(close + 1);
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        if (serverItself) {
            break;
        }
    }
    return std::string(text);
}

std::string withoutPassword(std::string text, std::string_view password) {
    constexpr std::string_view blot = "***";
    constexpr std::string_view key = "PWD=";
    for (auto at = text.find(key); at != std::string::npos; at = text.find(key, at)) {
        at += key.size();
        const auto end = text.find_first_of(";\"'", at);
        text.replace(at, end == std::string::npos ? end : end - at, blot);
    }
    // One or two characters stand in half of all words; blotted out, they would show what they are.
    if (password.size() > 2) {
        for (auto at = text.find(password); at != std::string::npos;
             at = text.find(password, at + blot.size())) {
            text.replace(at, password.size(), blot);
        }
    }
    return text;
}

} // namespace velcro::sql::odbc
