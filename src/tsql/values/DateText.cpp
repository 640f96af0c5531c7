#include "tsql/values/Collation.h"
#include "tsql/values/DateTime.h"
#include "tsql/values/Errors.h"

#include <array>

namespace velcro::sql::tsql {

namespace {

enum class Order : std::uint8_t { MonthFirst, DayFirst, YearFirst };

Order orderOf(int style) {
    switch (style % 100) {
    case 3:
    case 4:
    case 5:
    case 6:
    case 13:
    case 30:
    case 31:
        return Order::DayFirst;
    case 2:
    case 11:
    case 12:
    case 20:
    case 21:
    case 23:
    case 25:
    case 26:
    case 27:
        return Order::YearFirst;
    default:
        return Order::MonthFirst;
    }
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

int monthOf(std::string_view word) {
    for (int month = 1; month <= 12; ++month) {
        const auto name = monthName(month);
        if (sameName(word, name) || (word.size() == 3 && sameName(word, name.substr(0, 3)))) {
            return month;
        }
    }
    return 0;
}

// Two digits lie within the fifty years around the turn, as the server is set up to take them.
int fullYear(int year, std::size_t digits) {
    return digits > 2 ? year : year < 50 ? year + 2000 : year + 1900;
}

// One reading of one text. What is no date raises 241, what is out of range 242.
class Reader
{
public:
    Reader(std::string_view text, const Type& from, const Type& to, int style)
        : text_(text)
        , from_(from)
        , to_(to)
        , order_(orderOf(style)) {}

    DateTime read() {
        skipBlanks();
        while (at_ < text_.size()) {
            readPart();
            skipBlanks();
        }
        return {date(), ticks_};
    }

private:
    struct Number
    {
        int value;
        std::size_t digits;
    };

    [[noreturn]] void malformed() const { raise(241); }
    [[noreturn]] void outOfRange() const {
        const bool older = to_.id == TypeId::DateTime || to_.id == TypeId::SmallDateTime;
        if (!older) {
            malformed();
        }
        raise(242, {baseTypeName(from_.id), baseTypeName(to_.id)});
    }

    char peek(std::size_t ahead = 0) const {
        return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
    }
    void skipBlanks() {
        while (peek() == ' ' || peek() == ',' || peek() == '\t') {
            ++at_;
        }
    }

    Number number() {
        Number result{0, 0};
        for (; isDigit(peek()); ++at_, ++result.digits) {
            if (result.digits == 8) {
                malformed();
            }
            result.value = result.value * 10 + (peek() - '0');
        }
        if (result.digits == 0) {
            malformed();
        }
        return result;
    }

    std::string_view word() {
        const std::size_t start = at_;
        while (isLetter(peek())) {
            ++at_;
        }
        return text_.substr(start, at_ - start);
    }

    void readPart() {
        if (isLetter(peek())) {
            const int month = monthOf(word());
            if (month == 0 || month_ != 0) {
                malformed();
            }
            month_ = month;
            return;
        }
        const Number first = number();
        const char next = peek();
        if (next == ':' || isMeridian()) {
            time(first);
        } else if (next == '-' || next == '/' || next == '.') {
            separated(first, next);
        } else {
            plain(first);
        }
    }

    bool isMeridian() const {
        std::size_t ahead = 0;
        while (peek(ahead) == ' ') {
            ++ahead;
        }
        const char c = static_cast<char>(lowerCase(static_cast<unsigned char>(peek(ahead))));
        return (c == 'a' || c == 'p') && (peek(ahead + 1) == 'm' || peek(ahead + 1) == 'M') &&
               !isLetter(peek(ahead + 2));
    }

    // yyyymmdd, yymmdd, yyyy, or day and year beside a month's name.
    void plain(const Number& n) {
        if (n.digits == 8) {
            setDate(n.value / 10000, n.value / 100 % 100, n.value % 100);
        } else if (n.digits == 6) {
            setDate(fullYear(n.value / 10000, 2), n.value / 100 % 100, n.value % 100);
        } else if (n.digits == 4 && year_ == 0) {
            year_ = n.value == 0 ? -1 : n.value;
        } else if (n.digits <= 2 && day_ == 0) {
            day_ = n.value == 0 ? -1 : n.value;
        } else if (n.digits <= 2 && year_ == 0) {
            year_ = fullYear(n.value, 2);
        } else {
            malformed();
        }
    }

    void separated(const Number& first, char separator) {
        ++at_;
        if (isLetter(peek())) { // dd-mon-yyyy
            const int month = monthOf(word());
            if (month == 0 || peek() != separator) {
                malformed();
            }
            ++at_;
            const Number year = number();
            setDate(fullYear(year.value, year.digits), month, first.value);
            return;
        }
        const Number second = number();
        if (peek() != separator) {
            malformed();
        }
        ++at_;
        const Number third = number();
        assign(first, second, third);
        if ((peek() == 'T' || peek() == 't') && isDigit(peek(1))) {
            ++at_;
            time(number());
            if (peek() == 'Z' || peek() == 'z') {
                ++at_;
            }
        }
    }

    void assign(const Number& a, const Number& b, const Number& c) {
        if (a.digits > 2) {
            const bool dayInMiddle = order_ == Order::DayFirst && to_.id == TypeId::DateTime;
            setDate(a.value, dayInMiddle ? c.value : b.value, dayInMiddle ? b.value : c.value);
        } else if (order_ == Order::YearFirst && c.digits <= 2) {
            setDate(fullYear(a.value, a.digits), b.value, c.value);
        } else if (order_ == Order::DayFirst) {
            setDate(fullYear(c.value, c.digits), b.value, a.value);
        } else {
            setDate(fullYear(c.value, c.digits), a.value, b.value);
        }
    }

    void setDate(int year, int month, int day) {
        if (year_ != 0 || month_ != 0 || day_ != 0) {
            malformed();
        }
        year_ = year == 0 ? -1 : year;
        month_ = month == 0 ? -1 : month;
        day_ = day == 0 ? -1 : day;
    }

    void time(const Number& first) {
        if (timeRead_) {
            malformed();
        }
        timeRead_ = true;
        std::array<int, 3> parts{first.value, 0, 0};
        for (std::size_t i = 1; i < parts.size() && peek() == ':'; ++i) {
            ++at_;
            parts[i] = number().value;
        }
        const std::int64_t rest = fraction();
        int hour = parts[0];
        if (isMeridian()) {
            skipBlanks();
            const auto half = word();
            if (hour < 1 || hour > 12) {
                outOfRange();
            }
            hour = hour % 12 + (half[0] == 'p' || half[0] == 'P' ? 12 : 0);
        }
        if (hour > 23 || parts[1] > 59 || parts[2] > 59) {
            outOfRange();
        }
        ticks_ = hour * ticksOfHour + parts[1] * ticksOfMinute + parts[2] * ticksOfSecond + rest;
    }

    // .123 is a fraction; :123 counts milliseconds.
    std::int64_t fraction() {
        if (peek() != '.' && peek() != ':') {
            return 0;
        }
        const bool milliseconds = text_[at_++] == ':';
        const Number n = number();
        const std::size_t most = to_.id == TypeId::DateTime ? 3 : 7;
        if (n.digits > most) {
            malformed();
        }
        std::int64_t ticks = n.value;
        for (std::size_t i = milliseconds ? 3 : n.digits; i < 7; ++i) {
            ticks *= 10;
        }
        return ticks;
    }

    std::int64_t date() const {
        if (year_ == 0 && month_ == 0 && day_ == 0) {
            return day1900;
        }
        if (year_ == 0 || (month_ == 0 && day_ != 0)) {
            malformed();
        }
        const int month = month_ == 0 ? 1 : month_;
        const int day = day_ == 0 ? 1 : day_;
        if (year_ < 1 || year_ > 9999 || month < 1 || month > 12 || day < 1 ||
            day > daysInMonth(year_, month)) {
            outOfRange();
        }
        return dayOf({year_, month, day});
    }

    std::string_view text_;
    const Type& from_;
    const Type& to_;
    Order order_;
    std::size_t at_ = 0;
    int year_ = 0; // 0: not read yet; -1: read as 0, which no date has
    int month_ = 0;
    int day_ = 0;
    bool timeRead_ = false;
    std::int64_t ticks_ = 0;
};

} // namespace

DateTime readDateTime(std::string_view text, const Type& from, const Type& to, int style) {
    if (const auto stored = readStored(text);
        stored && style == 0 && (to.id != TypeId::DateTime || text.size() <= 23)) {
        return *stored;
    }
    return Reader(text, from, to, style).read();
}

} // namespace velcro::sql::tsql
