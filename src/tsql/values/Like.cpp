#include "tsql/values/Collation.h"
#include "tsql/values/Utf8.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

namespace velcro::sql::tsql {

namespace {

constexpr std::array<char, 256> makeLower() {
    std::array<char, 256> lower{};
    for (int c = 0; c < 256; ++c) {
        lower[c] = static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    }
    return lower;
}

constexpr auto asciiLower = makeLower();

char lowered(char c) {
    return asciiLower[static_cast<unsigned char>(c)];
}

bool equalFolded(const char* text, std::string_view folded) {
    for (const char c : folded) {
        if (lowered(*text++) != c) {
            return false;
        }
    }
    return true;
}

bool isSmallLetter(char c) {
    return c >= 'a' && c <= 'z';
}

// The first byte from `at` on that is `folded` in either case; `end` when there is none.
const char* findFolded(const char* at, const char* end, char folded) {
    if (!isSmallLetter(folded)) {
        const auto* found = std::memchr(at, folded, static_cast<std::size_t>(end - at));
        return found ? static_cast<const char*>(found) : end;
    }
    while (at != end && (*at | 0x20) != folded) {
        ++at;
    }
    return at;
}

bool containsFolded(std::string_view text, std::string_view folded) {
    if (folded.empty()) {
        return true;
    }
    if (text.size() < folded.size()) {
        return false;
    }
    const auto rest = folded.substr(1);
    const char* const end = text.data() + (text.size() - rest.size());
    for (const char* at = text.data(); (at = findFolded(at, end, folded.front())) != end; ++at) {
        if (equalFolded(at + 1, rest)) {
            return true;
        }
    }
    return false;
}

std::u32string decoded(std::string_view text) {
    std::u32string points;
    points.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        points += nextCodePoint(text, i);
    }
    return points;
}

} // namespace

LikePattern::LikePattern(std::string_view pattern, char32_t escape) {
    const auto points = decoded(pattern);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const char32_t c = points[i];
        if (escape != 0 && c == escape && i + 1 < points.size()) {
            steps_.push_back({Kind::Character, false, foldCase(points[++i]), {}});
        } else if (c == '%') {
            if (steps_.empty() || steps_.back().kind != Kind::Run) {
                steps_.push_back({Kind::Run, false, 0, {}});
            }
        } else if (c == '_') {
            steps_.push_back({Kind::Any, false, 0, {}});
        } else if (c == '[') {
            addSet(points, i);
        } else {
            steps_.push_back({Kind::Character, false, foldCase(c), {}});
        }
    }
    findShape();
}

// [set]: `at` stands on the bracket and ends on the closing one. A set that does not end matches
// nothing, as on the server.
void LikePattern::addSet(std::u32string_view pattern, std::size_t& at) {
    Step step{Kind::Set, false, 0, {}};
    std::size_t i = at + 1;
    if (i < pattern.size() && pattern[i] == '^') {
        step.negated = true;
        ++i;
    }
    const std::size_t first = i;
    bool closed = false;
    for (; i < pattern.size(); ++i) {
        if (pattern[i] == ']' && (i > first || step.negated)) {
            closed = true;
            break;
        }
        if (i + 2 < pattern.size() && pattern[i + 1] == '-' && pattern[i + 2] != ']') {
            step.ranges.push_back({foldCase(pattern[i]), foldCase(pattern[i + 2])});
            i += 2;
        } else {
            step.ranges.push_back({foldCase(pattern[i]), foldCase(pattern[i])});
        }
    }
    if (!closed) {
        step = {Kind::Set, false, 0, {}};
        i = pattern.size() - 1;
    }
    steps_.push_back(std::move(step));
    at = i;
}

void LikePattern::findShape() {
    const bool runFirst = !steps_.empty() && steps_.front().kind == Kind::Run;
    const bool runLast = steps_.size() > 1 && steps_.back().kind == Kind::Run;
    const std::size_t end = steps_.size() - (runLast ? 1 : 0);
    for (std::size_t i = runFirst ? 1 : 0; i < end; ++i) {
        if (steps_[i].kind != Kind::Character || steps_[i].character >= 0x80) {
            plain_.clear();
            return;
        }
        plain_ += static_cast<char>(steps_[i].character);
    }
    shape_ = runFirst  ? (runLast || plain_.empty() ? Shape::Contains : Shape::Suffix)
             : runLast ? Shape::Prefix
                       : Shape::Equal;
}

bool LikePattern::matchesShape(std::string_view text) const {
    if (text.size() < plain_.size()) {
        return false;
    }
    switch (shape_) {
    case Shape::Equal:
        return text.size() == plain_.size() && equalFolded(text.data(), plain_);
    case Shape::Prefix:
        return equalFolded(text.data(), plain_);
    case Shape::Suffix:
        return equalFolded(text.data() + (text.size() - plain_.size()), plain_);
    default:
        return containsFolded(text, plain_);
    }
}

bool LikePattern::matches(std::string_view text) const {
    return shape_ == Shape::General ? matchesFrom(text, 0) : matchesShape(text);
}

// One point to fall back to suffices: of two runs, the later one can take up what the earlier could.
bool LikePattern::matchesFrom(std::string_view text, std::size_t step) const {
    std::size_t at = 0;
    std::size_t runStep = steps_.size();
    std::size_t runAt = 0;
    while (true) {
        if (step < steps_.size() && steps_[step].kind == Kind::Run) {
            runStep = ++step;
            if (step == steps_.size()) {
                return true;
            }
            runAt = at = nextCandidate(steps_[step], text, at);
            continue;
        }
        if (step == steps_.size() && at == text.size()) {
            return true;
        }
        if (step < steps_.size() && at < text.size() && matchesOne(steps_[step], text, at)) {
            ++step;
            continue;
        }
        if (runStep == steps_.size() || runAt >= text.size()) {
            return false;
        }
        nextCodePoint(text, runAt);
        runAt = nextCandidate(steps_[runStep], text, runAt);
        at = runAt;
        step = runStep;
    }
}

// Where a run can end at the earliest: an ASCII character behind it is looked for byte by byte.
std::size_t LikePattern::nextCandidate(const Step& step, std::string_view text, std::size_t at) {
    if (step.kind != Kind::Character || step.character >= 0x80 || at >= text.size()) {
        return at;
    }
    const char* const end = text.data() + text.size();
    return static_cast<std::size_t>(
        findFolded(text.data() + at, end, static_cast<char>(step.character)) - text.data());
}

bool LikePattern::matchesOne(const Step& step, std::string_view text, std::size_t& at) {
    if (step.kind == Kind::Character && static_cast<unsigned char>(text[at]) < 0x80) {
        return static_cast<char32_t>(lowered(text[at++])) == step.character;
    }
    const char32_t c = foldCase(nextCodePoint(text, at));
    if (step.kind == Kind::Any) {
        return true;
    }
    if (step.kind == Kind::Character) {
        return c == step.character;
    }
    const bool inside =
        std::any_of(step.ranges.begin(), step.ranges.end(),
                    [c](const Range& range) { return c >= range.from && c <= range.to; });
    return inside != step.negated;
}

std::size_t LikePattern::indexIn(std::string_view text) const {
    const bool anywhere = !steps_.empty() && steps_.front().kind == Kind::Run;
    if (!anywhere) {
        return matches(text) ? 1 : 0;
    }
    std::size_t position = 1;
    for (std::size_t i = 0;;) {
        if (matchesFrom(text.substr(i), 1)) {
            return position;
        }
        if (i >= text.size()) {
            return 0;
        }
        position += unitsOf(nextCodePoint(text, i));
    }
}

} // namespace velcro::sql::tsql
