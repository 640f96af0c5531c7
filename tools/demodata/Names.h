// Names of people, firms and streets that nobody bears, put together from syllables, and telephone
// numbers that nobody has.
#pragma once

#include "Random.h"

#include <string>

namespace velcro::demo {

/// "Lorinda Bravensholt"; one in twelve with letters outside ASCII, one in forty very long.
std::string personName(Random& random);
std::string surname(Random& random);
std::string firmName(Random& random);
std::string streetAddress(Random& random);
std::string townName(Random& random);
std::string brandName(Random& random);

/// Ten digits: 0, two digits of 1 to 9, then 555 and the four digits of `serial`; every third one
/// has separators.
std::string phoneNumber(Random& random, int serial);

/// A mail address that can reach nobody, made of the ASCII letters of the name.
std::string mailAddress(const std::string& name, int serial);

std::string upperCase(std::string text);

/// The first characters of UTF-8 text; a character is never cut in two.
std::string cutTo(const std::string& text, std::size_t characters);

} // namespace velcro::demo
