// Text between UTF-8, which the program holds, and UTF-16, which drivers and some files speak.
#pragma once

#include <string>
#include <string_view>

namespace velcro::sql {

/// What is no valid UTF-8 becomes U+FFFD, one for each byte.
std::u16string toUtf16(std::string_view utf8);
/// The first byte that is no part of valid UTF-8; the text's size where there is none.
std::size_t firstInvalidUtf8(std::string_view utf8);
/// Lone surrogates become U+FFFD. Appends to out, so that a buffer can be used again.
void appendUtf8(std::u16string_view utf16, std::string& out);
std::string toUtf8(std::u16string_view utf16);

} // namespace velcro::sql
