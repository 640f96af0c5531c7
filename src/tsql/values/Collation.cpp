#include "tsql/values/Collation.h"

#include "tsql/values/CaseTable.h"
#include "tsql/values/Utf8.h"

#include <algorithm>
#include <array>
#include <sqlite3.h>

namespace velcro::sql::tsql {

namespace {

// The order of the server's dictionary sort: signs, then digits, then letters.
constexpr std::string_view signOrder = " _-,;:!?.'\"()[]{}@*/\\&#%`^+<=>|~$";

constexpr std::array<std::uint8_t, 128> makeWeights() {
    std::array<std::uint8_t, 128> weights{};
    std::uint8_t next = 0;
    for (int c = 0; c < 128; ++c) {
        if (c < ' ' || c == 127) {
            weights[c] = next++;
        }
    }
    for (const char c : signOrder) {
        weights[static_cast<unsigned char>(c)] = next++;
    }
    for (char c = '0'; c <= '9'; ++c) {
        weights[static_cast<unsigned char>(c)] = next++;
    }
    for (char c = 'a'; c <= 'z'; ++c, ++next) {
        weights[static_cast<unsigned char>(c)] = next;
        weights[static_cast<unsigned char>(c - 'a' + 'A')] = next;
    }
    return weights;
}

constexpr auto weights = makeWeights();
static_assert(weights['z'] == 101, "every ASCII character but the capitals has its own weight");

bool isAsciiByte(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

const CaseRun* runOf(char32_t c, bool small) {
    for (const auto& run : caseRuns) {
        const char32_t shift = small ? static_cast<char32_t>(run.delta) : 0;
        const char32_t first = run.first + shift;
        if (c >= first && c <= run.last + shift && (c - first) % run.stride == 0) {
            return &run;
        }
    }
    return nullptr;
}

char32_t baseLetter(char32_t c) {
    char base = '.';
    if (c >= 0xC0 && c < 0xC0 + baseLetters00C0.size()) {
        base = baseLetters00C0[c - 0xC0];
    } else if (c >= 0x1E00 && c < 0x1E00 + baseLetters1E00.size()) {
        base = baseLetters1E00[c - 0x1E00];
    }
    return base == '.' ? 0 : static_cast<char32_t>(base);
}

// What decides before accents do: the place of the base letter, other scripts behind Latin.
char32_t primaryWeight(char32_t folded) {
    if (folded < 0x80) {
        return weights[folded];
    }
    const char32_t base = baseLetter(folded);
    return base != 0 ? weights[base] : 0x100 + folded;
}

std::string_view withoutTrailingBlanks(std::string_view text) {
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

int sign(std::int64_t difference) {
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

// One text has ended: the other one's rest counts as against blanks.
int compareRest(std::string_view rest) {
    for (const char c : rest) {
        if (c != ' ') {
            return isAsciiByte(c) && weights[static_cast<unsigned char>(c)] < weights[' '] ? -1 : 1;
        }
    }
    return 0;
}

// From the first byte that is not ASCII on; what stands before is equal.
int compareBeyondAscii(std::string_view a, std::string_view b) {
    a = withoutTrailingBlanks(a);
    b = withoutTrailingBlanks(b);
    int accents = 0;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size()) {
        const char32_t x = foldCase(nextCodePoint(a, i));
        const char32_t y = foldCase(nextCodePoint(b, j));
        if (x == y) {
            continue;
        }
        const std::int64_t primary = std::int64_t{primaryWeight(x)} - primaryWeight(y);
        if (primary != 0) {
            return sign(primary);
        }
        if (accents == 0) {
            accents = x < y ? -1 : 1;
        }
    }
    if (i < a.size() || j < b.size()) {
        return i < a.size() ? compareRest(a.substr(i)) : -compareRest(b.substr(j));
    }
    return accents;
}

template <char32_t (*map)(char32_t)>
std::string mapped(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        appendCodePoint(result, map(nextCodePoint(text, i)));
    }
    return result;
}

int collate(void*, int aSize, const void* a, int bSize, const void* b) {
    return compareText({static_cast<const char*>(a), static_cast<std::size_t>(aSize)},
                       {static_cast<const char*>(b), static_cast<std::size_t>(bSize)});
}

} // namespace

char32_t lowerCase(char32_t c) {
    if (c < 0x80) {
        return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c;
    }
    const auto* run = runOf(c, false);
    return run ? c + static_cast<char32_t>(run->delta) : c;
}

char32_t upperCase(char32_t c) {
    if (c < 0x80) {
        return c >= 'a' && c <= 'z' ? c - ('a' - 'A') : c;
    }
    const auto* run = runOf(c, true);
    return run ? c - static_cast<char32_t>(run->delta) : c;
}

char32_t foldCase(char32_t c) {
    return lowerCase(c);
}

std::string upperText(std::string_view text) {
    return mapped<upperCase>(text);
}
std::string lowerText(std::string_view text) {
    return mapped<lowerCase>(text);
}
std::string foldText(std::string_view text) {
    return lowerText(withoutTrailingBlanks(text));
}

int compareText(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (!isAsciiByte(a[i]) || !isAsciiByte(b[i])) {
            return compareBeyondAscii(a.substr(i), b.substr(i));
        }
        const int difference = int{weights[static_cast<unsigned char>(a[i])]} -
                               int{weights[static_cast<unsigned char>(b[i])]};
        if (difference != 0) {
            return difference;
        }
    }
    return a.size() > common ? compareRest(a.substr(common)) : -compareRest(b.substr(common));
}

namespace {

/// In front of an index that it makes for one join SQLite asks a Bloom filter, and from 3.38 to 3.41
/// that hashes a text by its length: texts that are equal in spite of their trailing blanks, or of a
/// letter whose other case is longer, then never meet. Later versions hash all texts alike and may keep
/// the filter, and the bit below may come to mean something else in them. Without such indexes the
/// filter could not err either, but a join over columns without an index would take the square of its
/// rows; that is left for a library that was built without the test control.
void switchOffBloomFilter(sqlite3* database) {
    constexpr int firstWrong = 3'038'000;
    constexpr int firstRight = 3'042'000;
    constexpr unsigned bloomFilter = 0x00080000;
    const int version = sqlite3_libversion_number();
    if (version < firstWrong || version >= firstRight) {
        return;
    }
    if (sqlite3_compileoption_used("UNTESTABLE") != 0) {
        sqlite3_exec(database, "PRAGMA automatic_index = OFF", nullptr, nullptr, nullptr);
        return;
    }
    sqlite3_test_control(SQLITE_TESTCTRL_OPTIMIZATIONS, database, bloomFilter);
}

} // namespace

void registerCollation(sqlite3* database) {
    switchOffBloomFilter(database);
    sqlite3_create_collation_v2(database, collationName.data(), SQLITE_UTF8, nullptr, collate,
                                nullptr);
}

} // namespace velcro::sql::tsql
