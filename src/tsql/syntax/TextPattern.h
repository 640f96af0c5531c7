// The bytes of a batch that was compiled before, with gaps where its literals stood: the next text
// of the same make is recognised by comparing bytes, and only its literals are read.
#pragma once

#include "tsql/syntax/Shape.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velcro::sql::tsql {

class TextPattern
{
public:
    /// shape is the part of batch that its statements were parsed from, with these literals; those
    /// at the indices structural must be the same again. Nothing when a literal stands where another
    /// one in its place could be cut into tokens otherwise, and for texts too long to be worth
    /// keeping.
    static std::optional<TextPattern> of(std::string_view batch, std::string_view shape,
                                         std::span<const LiftedLiteral> literals,
                                         std::span<const std::uint32_t> structural);

    /// True when the lexer would cut text into the same tokens, literals of the same kinds aside;
    /// these then stand in literals, as views into text.
    bool matches(std::string_view text, std::vector<LiftedLiteral>& literals) const;

    /// The part of a matching text that its statements were parsed from.
    std::string_view shapeText(std::string_view text) const;

    /// What all texts of one make begin with: up to where the first literal may stand.
    static std::string_view headOf(std::string_view text);
    std::string_view head() const { return headOf(text_); }

private:
    struct Gap
    {
        std::uint32_t offset;
        std::uint32_t end;
        LiteralKind kind;
        bool fixed = false;
    };

    std::string text_;
    std::vector<Gap> gaps_;
    std::size_t before_ = 0; // bytes of the batch before and behind the shape
    std::size_t behind_ = 0;
};

/// Patterns and what was compiled for each. Compiled is cheap to copy.
template <class Compiled>
class PatternCache
{
public:
    struct Entry
    {
        TextPattern pattern;
        Compiled compiled;
    };

    explicit PatternCache(std::size_t capacity)
        : capacity_(capacity) {}

    /// The result stays valid until the next insert.
    const Entry* find(std::string_view text, std::vector<LiftedLiteral>& literals) {
        const auto bucket = buckets_.find(TextPattern::headOf(text));
        if (bucket == buckets_.end()) {
            return nullptr;
        }
        auto& entries = bucket->second;
        const auto found = std::find_if(entries.begin(), entries.end(), [&](const auto& entry) {
            return entry->pattern.matches(text, literals);
        });
        if (found == entries.end()) {
            return nullptr;
        }
        std::rotate(entries.begin(), found, found + 1);
        return entries.front().get();
    }

    /// When it is full it begins anew: what is used comes back at the price of one pass each.
    void insert(TextPattern pattern, Compiled compiled) {
        if (size_ >= capacity_) {
            buckets_.clear();
            size_ = 0;
        }
        auto& entries = buckets_[std::string(pattern.head())];
        if (entries.size() >= bucketSize) {
            entries.pop_back();
            --size_;
        }
        auto entry = std::make_unique<Entry>(Entry{std::move(pattern), std::move(compiled)});
        entries.insert(entries.begin(), std::move(entry));
        ++size_;
    }

private:
    struct Hash
    {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>()(text);
        }
    };
    static constexpr std::size_t bucketSize = 8;

    std::size_t capacity_;
    std::size_t size_ = 0;
    std::unordered_map<std::string, std::vector<std::unique_ptr<Entry>>, Hash, std::equal_to<>>
        buckets_; // by head; the last used first
};

} // namespace velcro::sql::tsql
