// Functions over text. Positions and lengths count UTF-16 units from 1, as the server does.
#include "tsql/functions/FunctionCall.h"
#include "tsql/values/Collation.h"
#include "tsql/values/NumberText.h"
#include "tsql/values/Utf8.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velcro::sql::tsql {

namespace {

constexpr std::size_t longest = 100'000'000; // of what REPLICATE and SPACE may make
static_assert(longest < longestValue);

std::string_view withoutTrailing(std::string_view text) {
    const auto last = text.find_last_not_of(' ');
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::string_view withoutLeading(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

void length(const Call& call) {
    const auto text = withoutTrailing(call.text(0));
    call.give(static_cast<std::int64_t>(textLength(text)));
}

std::int64_t storedBytes(const Call& call, const Type& type) {
    switch (type.id) {
    case TypeId::Bit:
    case TypeId::TinyInt:
        return 1;
    case TypeId::SmallInt:
        return 2;
    case TypeId::Int:
    case TypeId::Real:
    case TypeId::SmallMoney:
    case TypeId::SmallDateTime:
        return 4;
    case TypeId::Date:
        return 3;
    case TypeId::UniqueIdentifier:
        return 16;
    case TypeId::Decimal:
    case TypeId::Numeric:
        return type.precision <= 9 ? 5 : type.precision <= 19 ? 9 : type.precision <= 28 ? 13 : 17;
    default:
        break;
    }
    if (call.storage(0) == SQLITE_BLOB) {
        return static_cast<std::int64_t>(std::get<Blob>(call.value(0)).bytes.size());
    }
    if (type.isText()) {
        return static_cast<std::int64_t>(textLength(call.text(0))) * (type.isWide() ? 2 : 1);
    }
    return 8;
}

void dataLength(const Call& call) {
    call.give(storedBytes(call, call.type(1)));
}

void trimLeft(const Call& call) {
    call.give(withoutLeading(call.text(0)));
}
void trimRight(const Call& call) {
    call.give(withoutTrailing(call.text(0)));
}
void trim(const Call& call) {
    call.give(withoutLeading(withoutTrailing(call.text(0))));
}
void upper(const Call& call) {
    call.give(std::string_view(upperText(call.text(0))));
}
void lower(const Call& call) {
    call.give(std::string_view(lowerText(call.text(0))));
}

void substring(const Call& call) {
    const auto text = call.text(0);
    const std::int64_t start = call.integer(1);
    const std::int64_t count = call.integer(2);
    if (count < 0) {
        raise(537);
    }
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    const std::int64_t end = std::min(start, most) + std::min(count, most);
    const std::int64_t from = std::max<std::int64_t>(start, 1);
    const std::int64_t kept = std::max<std::int64_t>(end - from, 0);
    call.give(sliceText(text, static_cast<std::size_t>(from - 1), static_cast<std::size_t>(kept)));
}

std::size_t requireLength(const Call& call, std::size_t argument, std::string_view function) {
    const std::int64_t count = call.integer(argument);
    if (count < 0) {
        raise(536, {function});
    }
    return static_cast<std::size_t>(count);
}

void left(const Call& call) {
    call.give(sliceText(call.text(0), 0, requireLength(call, 1, "left")));
}

void right(const Call& call) {
    const auto text = call.text(0);
    const std::size_t all = textLength(text);
    const std::size_t count = std::min(requireLength(call, 1, "right"), all);
    call.give(sliceText(text, all - count, count));
}

void replicate(const Call& call) {
    const auto text = call.text(0);
    const std::int64_t count = call.integer(1);
    if (count < 0) {
        return;
    }
    const auto most = text.empty() ? 0 : longest / text.size();
    std::string result;
    for (std::size_t i = 0; i < std::min(static_cast<std::size_t>(count), most); ++i) {
        result += text;
    }
    call.give(std::string_view(result));
}

void space(const Call& call) {
    const std::int64_t count = call.integer(0);
    if (count >= 0) {
        const std::string blanks(std::min<std::size_t>(static_cast<std::size_t>(count), 8000), ' ');
        call.give(std::string_view(blanks));
    }
}

void stuff(const Call& call) {
    const auto text = call.text(0);
    const std::int64_t start = call.integer(1);
    const std::int64_t count = call.integer(2);
    if (start < 1 || count < 0 || start > static_cast<std::int64_t>(textLength(text))) {
        return;
    }
    const auto head = sliceText(text, 0, static_cast<std::size_t>(start - 1));
    const auto removed =
        sliceText(text, static_cast<std::size_t>(start - 1), static_cast<std::size_t>(count));
    std::string result(head);
    result += call.isNull(3) ? std::string_view() : call.text(3);
    result += text.substr(head.size() + removed.size());
    call.give(std::string_view(result));
}

void stuffOrNull(const Call& call) {
    if (!call.isNull(0) && !call.isNull(1) && !call.isNull(2)) {
        stuff(call);
    }
}

void reverse(const Call& call) {
    const auto text = call.text(0);
    std::string result(text.size(), ' ');
    std::size_t end = text.size();
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t start = i;
        nextCodePoint(text, i);
        end -= i - start;
        text.copy(result.data() + end, i - start, start);
    }
    call.give(std::string_view(result));
}

// STR(number, length, decimals): right-aligned, stars when it does not fit.
void str(const Call& call) {
    const auto width = call.count() > 1 ? call.integer(1) : 10;
    const auto decimals = call.count() > 2 ? std::clamp<std::int64_t>(call.integer(2), 0, 16) : 0;
    if (width < 1 || width > 8000) {
        return;
    }
    const auto wanted = static_cast<std::size_t>(width);
    std::string text = decimalText(call.number(0), static_cast<int>(decimals));
    const auto whole = std::min(text.find('.'), text.size());
    if (whole > wanted) {
        text = std::string(wanted, '*');
    } else if (text.size() > wanted) {
        text = decimalText(call.number(0),
                           static_cast<int>(wanted > whole + 1 ? wanted - whole - 1 : 0));
    }
    text.insert(0, wanted - std::min(wanted, text.size()), ' ');
    call.give(std::string_view(text));
}

void unicode(const Call& call) {
    const auto text = call.text(0);
    std::size_t at = 0;
    if (!text.empty()) {
        call.give(static_cast<std::int64_t>(nextCodePoint(text, at)));
    }
}

template <std::int64_t most>
void character(const Call& call) {
    const std::int64_t code = call.integer(0);
    if (code < 0 || code > most) {
        return;
    }
    std::string text;
    appendCodePoint(text, static_cast<char32_t>(code));
    call.give(std::string_view(text));
}

void concat(const Call& call) {
    std::string result;
    for (std::size_t i = 0; i < call.count(); ++i) {
        result += call.text(i);
    }
    call.give(std::string_view(result));
}

void concatWithSeparator(const Call& call) {
    std::string result;
    bool first = true;
    for (std::size_t i = 1; i < call.count(); ++i) {
        if (!call.isNull(i)) {
            result += first ? std::string_view() : call.text(0);
            result += call.text(i);
            first = false;
        }
    }
    call.give(std::string_view(result));
}

void quoted(const Call& call) {
    std::string result = "[";
    for (const char c : call.text(0)) {
        result.append(c == ']' ? 2 : 1, c);
    }
    call.give(std::string_view(result + "]"));
}

constexpr ScalarFunction functions[] = {
    {"ts_len", 1, runScalar<length>},
    {"ts_datalength", 2, runScalar<dataLength>},
    {"ts_ltrim", 1, runScalar<trimLeft>},
    {"ts_rtrim", 1, runScalar<trimRight>},
    {"ts_trim", 1, runScalar<trim>},
    {"ts_upper", 1, runScalar<upper>},
    {"ts_lower", 1, runScalar<lower>},
    {"ts_substring", 3, runScalar<substring>},
    {"ts_left", 2, runScalar<left>},
    {"ts_right", 2, runScalar<right>},
    {"ts_replicate", 2, runScalar<replicate>},
    {"ts_space", 1, runScalar<space>},
    {"ts_stuff", 4, runScalar<stuffOrNull, true>},
    {"ts_reverse", 1, runScalar<reverse>},
    {"ts_str", -1, runScalar<str>},
    {"ts_unicode", 1, runScalar<unicode>},
    {"ts_char", 1, runScalar<character<255>>},
    {"ts_nchar", 1, runScalar<character<0xFFFF>>},
    {"ts_concat", -1, runScalar<concat, true>},
    {"ts_concat_ws", -1, runScalar<concatWithSeparator, true>},
    {"ts_quotename", 1, runScalar<quoted>},
};

} // namespace

std::span<const ScalarFunction> textFunctions() {
    return functions;
}

} // namespace velcro::sql::tsql
