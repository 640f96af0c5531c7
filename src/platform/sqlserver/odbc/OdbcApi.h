// The ODBC headers as both systems want them, and the step between their wide characters and ours.
#pragma once

#ifdef _WIN32
#include <windows.h>
#endif
#include <sql.h>
#include <sqlext.h>

namespace velcro::sql::odbc {

// Two bytes on every system, unlike wchar_t.
static_assert(sizeof(SQLWCHAR) == sizeof(char16_t));

inline SQLWCHAR* wide(char16_t* text) {
    return reinterpret_cast<SQLWCHAR*>(text);
}

/// For arguments that a function only reads but does not declare so.
inline SQLWCHAR* wide(const char16_t* text) {
    return wide(const_cast<char16_t*>(text));
}

} // namespace velcro::sql::odbc
