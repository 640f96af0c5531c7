#include "messaging/SysJSONParser.h"

#include "data/Errors.h"

#include <nlohmann/json.hpp>

#include <iterator>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using Json = nlohmann::json;

/// Tells how much of the text the parser has read.
class Cursor
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    Cursor(const char* at, std::size_t& read)
        : at_(at)
        , read_(&read) {}
    reference operator*() const { return *at_; }
    Cursor& operator++() {
        ++at_;
        ++*read_;
        return *this;
    }
    Cursor operator++(int) {
        const Cursor before = *this;
        ++*this;
        return before;
    }
    bool operator==(const Cursor& other) const { return at_ == other.at_; }
    bool operator!=(const Cursor& other) const { return at_ != other.at_; }

private:
    const char* at_;
    std::size_t* read_;
};

/// Walks a text and keeps one value of its top level. However deep and large the rest is, it costs
/// no memory.
class TopLevel : public nlohmann::json_sax<Json>
{
public:
    TopLevel(const std::string& text, std::string member)
        : text_(text)
        , member_(std::move(member)) {}

    /// Whether the text is one object; the value is there then, if it has it.
    bool walk() {
        std::size_t unused = 0;
        return Json::sax_parse(Cursor(text_.data(), read_),
                               Cursor(text_.data() + text_.size(), unused), this) &&
               isObject_;
    }

    std::optional<std::string> value;

    bool null() override { return take("null"); }
    bool boolean(bool yes) override { return take(yes ? "True" : "False"); }
    bool number_integer(number_integer_t number) override { return take(std::to_string(number)); }
    bool number_unsigned(number_unsigned_t number) override { return take(std::to_string(number)); }
    bool number_float(number_float_t /*number*/, const string_t& text) override {
        return take(text);
    }
    bool string(string_t& text) override { return take(text); }
    bool binary(binary_t& /*bytes*/) override { return false; }
    bool start_object(std::size_t /*size*/) override {
        isObject_ = isObject_ || depth_ == 0;
        return open();
    }
    bool end_object() override { return close(); }
    bool start_array(std::size_t /*size*/) override { return open(); }
    bool end_array() override { return close(); }
    bool key(string_t& name) override {
        wanted_ = depth_ == 1 && !value && name == member_;
        return true;
    }
    bool parse_error(std::size_t /*position*/, const std::string& /*last*/,
                     const nlohmann::detail::exception& /*fault*/) override {
        return false;
    }

private:
    bool take(const std::string& text) {
        if (std::exchange(wanted_, false)) {
            value = text;
        }
        return true;
    }
    bool open() {
        if (std::exchange(wanted_, false)) {
            begin_ = read_ - 1;
        }
        ++depth_;
        return true;
    }
    bool close() {
        if (--depth_ == 1 && begin_) {
            value = text_.substr(*begin_, read_ - *begin_);
            begin_.reset();
        }
        return true;
    }

    const std::string& text_;
    const std::string member_;
    std::size_t read_ = 0;
    std::size_t depth_ = 0;
    std::optional<std::size_t> begin_; // of the object or list that is kept
    bool wanted_ = false;              // what comes next
    bool isObject_ = false;
};

std::string asAscii(const QString& text) {
    std::string ascii;
    for (const QChar c : text) {
        ascii += c.unicode() < 0x80 ? char(c.unicode()) : '?';
    }
    return ascii;
}

} // namespace

QString sj_Parse_Tag(const QString& xJSONString, const QString& xTag, const QString& xUnchanged) {
    const std::string text = asAscii(xJSONString);
    TopLevel members(text, xTag.toStdString());
    if (!members.walk()) {
        throw VelmaraError(u"Invalid class typecast"_s);
    }
    return members.value ? QString::fromStdString(*members.value) : xUnchanged;
}
