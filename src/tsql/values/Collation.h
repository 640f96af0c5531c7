// How text is compared and searched: case does not count, accents do, and in comparisons (but not in
// LIKE) trailing blanks do not.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace velcro::sql::tsql {

/// The name of the collation in SQLite: every text column is declared with it, and comparisons
/// between expressions that are no columns need COLLATE with it.
inline constexpr std::string_view collationName = "SQL_CI_AS";

/// Below 0, 0, above 0. Bytes that are no UTF-8 compare as they are.
int compareText(std::string_view a, std::string_view b);

/// Names (of tables, columns, variables) are equal when case alone tells them apart.
inline bool sameName(std::string_view a, std::string_view b) {
    return compareText(a, b) == 0;
}
/// The form of a name or a value to use as a key: texts that compare equal have equal folds.
std::string foldText(std::string_view text);

/// Simple case mappings of one code point.
char32_t foldCase(char32_t c);
char32_t upperCase(char32_t c);
char32_t lowerCase(char32_t c);
std::string upperText(std::string_view text);
std::string lowerText(std::string_view text);

/// A LIKE pattern made ready once and matched often: %, _, [set], [^set], ranges, an escape character.
class LikePattern
{
public:
    /// escape 0: none.
    explicit LikePattern(std::string_view pattern, char32_t escape = 0);

    bool matches(std::string_view text) const;
    /// PATINDEX: the position (1 upward, in UTF-16 units) of the first match; 0 for none.
    std::size_t indexIn(std::string_view text) const;

private:
    enum class Kind : std::uint8_t { Character, Any, Run, Set };
    struct Range
    {
        char32_t from;
        char32_t to;
    };
    struct Step
    {
        Kind kind;
        bool negated = false;
        char32_t character = 0;    // folded
        std::vector<Range> ranges; // folded
    };
    /// What most patterns are, matched without the steps: text, text%, %text, %text%.
    enum class Shape : std::uint8_t { General, Equal, Prefix, Suffix, Contains };

    void addSet(std::u32string_view pattern, std::size_t& at);
    void findShape();
    bool matchesShape(std::string_view text) const;
    bool matchesFrom(std::string_view text, std::size_t step) const;
    static std::size_t nextCandidate(const Step& step, std::string_view text, std::size_t at);
    static bool matchesOne(const Step& step, std::string_view text, std::size_t& at);

    std::vector<Step> steps_;
    Shape shape_ = Shape::General;
    std::string plain_; // ASCII, lower case; the text of a simple shape
};

/// Makes the collation known on a connection, and SQLite compare by it in every plan.
void registerCollation(sqlite3* database);

} // namespace velcro::sql::tsql
