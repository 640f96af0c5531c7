// Small pieces of SQLite text.
#pragma once

#include "tsql/values/Values.h"

#include <span>
#include <string>
#include <string_view>

namespace velcro::sql::tsql {

/// 'it''s'
std::string quoteText(std::string_view text);
/// A value as SQLite's own literal.
std::string sqliteLiteral(const Value& value);
/// ts_cast(text, from, to, style)
std::string castText(std::string_view text, const Type& from, const Type& to, int style = 0,
                     bool isTry = false);
std::string joinTexts(std::span<const std::string> texts, std::string_view separator);
/// The name in upper case, ASCII letters alone: names of functions and options.
std::string upperName(std::string_view name);

/// The length of text whose own length is not known before it is bound.
inline constexpr int openTextLength = 4000;

} // namespace velcro::sql::tsql
