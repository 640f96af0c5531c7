// Makes texts from a grammar file: a rule's name stands at the begin of a line, its alternatives
// below it, indented; <name> in an alternative stands for that rule.
#pragma once

#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

using Random = std::minstd_rand;

/// 0 to count - 1.
inline std::size_t pick(Random& random, std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
}

class Grammar
{
public:
    /// Stops the program when the file is missing or names a rule that is none.
    explicit Grammar(const std::string& file);

    /// A text of that rule. Rules below that depth take their first alternative, which ends them.
    std::string text(std::string_view rule, int depth, Random& random) const;

private:
    const std::vector<std::string>& alternatives(std::string_view rule) const;

    std::map<std::string, std::vector<std::string>, std::less<>> rules_;
};
