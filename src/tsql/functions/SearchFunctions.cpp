// LIKE, PATINDEX, CHARINDEX and REPLACE: searching text without regard to case.
#include "tsql/functions/FunctionCall.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Utf8.h"

#include <algorithm>
#include <memory>

namespace velcro::sql::tsql {

namespace {

void freePattern(void* pattern) {
    const std::unique_ptr<LikePattern> owner(static_cast<LikePattern*>(pattern));
}

// SQLite keeps what was made of a constant argument for the whole statement.
const LikePattern& patternOf(const Call& call, std::unique_ptr<LikePattern>& own) {
    if (auto* kept = static_cast<LikePattern*>(sqlite3_get_auxdata(call.context(), 0))) {
        return *kept;
    }
    char32_t escape = 0;
    if (call.count() > 2) {
        const auto text = call.text(2);
        std::size_t at = 0;
        escape = text.empty() ? 0 : nextCodePoint(text, at);
    }
    auto made = std::make_unique<LikePattern>(call.text(0), escape);
    sqlite3_set_auxdata(call.context(), 0, made.release(), freePattern);
    if (auto* kept = static_cast<LikePattern*>(sqlite3_get_auxdata(call.context(), 0))) {
        return *kept;
    }
    own = std::make_unique<LikePattern>(call.text(0), escape);
    return *own;
}

void like(const Call& call) {
    std::unique_ptr<LikePattern> own;
    call.give(static_cast<std::int64_t>(patternOf(call, own).matches(call.text(1))));
}

void patternIndex(const Call& call) {
    std::unique_ptr<LikePattern> own;
    call.give(static_cast<std::int64_t>(patternOf(call, own).indexIn(call.text(1))));
}

bool startsWith(std::string_view text, std::string_view wanted, std::size_t& end) {
    std::size_t at = 0;
    for (std::size_t i = 0; i < wanted.size();) {
        if (at >= text.size() ||
            foldCase(nextCodePoint(text, at)) != foldCase(nextCodePoint(wanted, i))) {
            return false;
        }
    }
    end = at;
    return true;
}

void charIndex(const Call& call) {
    const auto wanted = call.text(0);
    const auto text = call.text(1);
    const std::int64_t start = call.count() > 2 ? std::max<std::int64_t>(call.integer(2), 1) : 1;
    std::int64_t position = 1;
    for (std::size_t at = 0; at < text.size() && !wanted.empty();) {
        std::size_t end = 0;
        if (position >= start && startsWith(text.substr(at), wanted, end)) {
            call.give(position);
            return;
        }
        position += static_cast<std::int64_t>(unitsOf(nextCodePoint(text, at)));
    }
    call.give(std::int64_t{0});
}

void replace(const Call& call) {
    const auto text = call.text(0);
    const auto wanted = call.text(1);
    const auto with = call.text(2);
    if (wanted.empty()) {
        call.give(text);
        return;
    }
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t length = 0;
        if (startsWith(text.substr(at), wanted, length)) {
            requireRoom(result.size() + with.size());
            result += with;
            at += length;
            continue;
        }
        const std::size_t from = at;
        nextCodePoint(text, at);
        result += text.substr(from, at - from);
    }
    call.give(std::string_view(result));
}

constexpr ScalarFunction functions[] = {
    {"ts_like", 2, runScalar<like>},
    {"ts_like", 3, runScalar<like>},
    {"ts_patindex", 2, runScalar<patternIndex>},
    {"ts_charindex", 2, runScalar<charIndex>},
    {"ts_charindex", 3, runScalar<charIndex>},
    {"ts_replace", 3, runScalar<replace>},
};

} // namespace

std::span<const ScalarFunction> searchFunctions() {
    return functions;
}

} // namespace velcro::sql::tsql
