// What a statement's text is when its literals are left open: the key under which a compiled
// statement is found again with nothing but one pass of the lexer.
#pragma once

#include "tsql/syntax/Lexer.h"

#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace velcro::sql::tsql {

/// A literal lifted out of a text, in the order it stands.
struct LiftedLiteral
{
    LiteralKind kind = LiteralKind::String;
    bool doubled = false;
    std::string_view raw; // as written; a view into the text

    /// The value without quotes and prefix; a view into the text unless quotes had to be undoubled,
    /// which is done in scratch.
    std::string_view value(std::string& scratch) const;
};

/// key is the text with every literal replaced by a place holder of its kind and with blanks and
/// comments folded; the case of names is kept. text is the part of the batch it was made from,
/// firstLine the batch's line it begins on, beginsBatch whether nothing stands before it.
struct Shape
{
    std::string key;
    std::vector<LiftedLiteral> literals;
    std::string_view text;
    std::uint32_t firstLine = 1;
    bool beginsBatch = true;
};

/// Cuts a batch into the pieces that are compiled and kept each on its own: a run of rows statements
/// (SELECT, INSERT, UPDATE, DELETE, MERGE, WITH, EXEC) is one piece up to its semicolon; from the
/// first statement of another kind the rest of the batch is one piece, since variables and control
/// flow bind it together. Pieces without any token are passed over.
class ShapeReader
{
public:
    explicit ShapeReader(std::string_view batch);
    /// Fills shape, reusing its buffers; false at the end of the batch. Throws as the lexer does.
    bool next(Shape& shape);

private:
    std::string_view batch_;
    Lexer lexer_;
    Token ahead_;
    bool first_ = true;
};

/// Keeps what was compiled from shapes; the longest unused goes first. Compiled is any movable type;
/// pointers to it stay valid until insert or clear drops it, so hold a shared_ptr across an insert.
template <class Compiled>
class ShapeCache
{
public:
    explicit ShapeCache(std::size_t capacity)
        : capacity_(capacity) {}

    /// Null when this shape, with these structural literals, was not seen before.
    Compiled* find(const Shape& shape) {
        const auto known = makes_.find(shape.key);
        if (known == makes_.end()) {
            return nullptr;
        }
        const auto found = entries_.find(fullKey(shape, known->second.structural));
        if (found == entries_.end()) {
            return nullptr;
        }
        order_.splice(order_.begin(), order_, found->second);
        return &found->second->compiled;
    }

    /// structural are the indices of the literals whose values the compiled form depends on.
    Compiled& insert(const Shape& shape, std::vector<std::uint32_t> structural, Compiled compiled) {
        std::string key(fullKey(shape, structural));
        if (const auto old = entries_.find(key); old != entries_.end()) {
            drop(old->second);
        }
        auto& make = *makes_.try_emplace(shape.key).first;
        make.second.structural = std::move(structural);
        ++make.second.entries;
        order_.push_front({std::move(key), &make, std::move(compiled)});
        entries_.emplace(order_.front().key, order_.begin());
        while (order_.size() > capacity_) {
            drop(std::prev(order_.end()));
        }
        return order_.front().compiled;
    }

    void clear() {
        entries_.clear();
        order_.clear();
        makes_.clear();
    }
    std::size_t size() const { return order_.size(); }
    /// Keys that are remembered; never more than there are entries.
    std::size_t makes() const { return makes_.size(); }

private:
    /// What all entries of one key have in common; goes with the last of them.
    struct Make
    {
        std::vector<std::uint32_t> structural;
        std::size_t entries = 0;
    };
    using Makes = std::unordered_map<std::string, Make>;
    struct Entry
    {
        std::string key;
        typename Makes::value_type* make;
        Compiled compiled;
    };

    void drop(typename std::list<Entry>::iterator entry) {
        if (--entry->make->second.entries == 0) {
            makes_.erase(makes_.find(entry->make->first));
        }
        entries_.erase(entry->key);
        order_.erase(entry);
    }
    std::string_view fullKey(const Shape& shape, const std::vector<std::uint32_t>& structural) {
        if (structural.empty()) {
            return shape.key;
        }
        scratch_ = shape.key;
        for (const std::uint32_t index : structural) {
            scratch_.push_back('\0');
            scratch_.append(shape.literals[index].raw);
        }
        return scratch_;
    }

    std::size_t capacity_;
    std::string scratch_;
    std::list<Entry> order_; // the last used first
    std::unordered_map<std::string_view, typename std::list<Entry>::iterator> entries_;
    Makes makes_;
};

} // namespace velcro::sql::tsql
