#include "BatchReader.h"

#include "platform/sqlserver/Utf16.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace velcro::velsql {

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    const auto last = text.find_last_not_of(blanks);
    return first == std::string_view::npos ? "" : text.substr(first, last - first + 1);
}

/// How often a GO line wants its batch to run; nothing where the line is none.
std::optional<int> goCount(std::string_view line) {
    line = trimmed(line);
    const bool go = line.size() >= 2 && (line[0] | 0x20) == 'g' && (line[1] | 0x20) == 'o';
    if (!go || (line.size() > 2 && blanks.find(line[2]) == std::string_view::npos)) {
        return std::nullopt;
    }
    const auto digits = trimmed(line.substr(2));
    if (digits.empty()) {
        return 1;
    }
    int count = 0;
    const auto [end, problem] =
        std::from_chars(digits.data(), digits.data() + digits.size(), count);
    const bool isNumber =
        problem == std::errc() && end == digits.data() + digits.size() && count >= 0;
    return isNumber ? std::optional(count) : std::nullopt;
}

/// A line break inside quotes or a block comment does not end them; a GO there is text.
bool opensALine(const sql::TextScanner& scanner) {
    using Place = sql::TextScanner::Place;
    return scanner.place() == Place::Code || scanner.place() == Place::LineComment;
}

void scan(sql::TextScanner& scanner, std::string_view line) {
    for (std::size_t i = 0; i < line.size(); ++i) {
        scanner.next(line[i], i + 1 < line.size() ? line[i + 1] : '\n');
    }
    scanner.next('\n', 0);
}

} // namespace

std::optional<Batch> BatchReader::next() {
    Batch batch;
    batch.line = line_ + 1;
    sql::TextScanner scanner;
    std::string line;
    while (readLine(line)) {
        const auto count = opensALine(scanner) ? goCount(line) : std::nullopt;
        if (!count) {
            scan(scanner, line);
            batch.text.append(line).append("\n");
            continue;
        }
        batch.count = *count;
        if (!trimmed(batch.text).empty()) {
            return batch;
        }
        batch = Batch();
        batch.line = line_ + 1;
        scanner = sql::TextScanner();
    }
    return trimmed(batch.text).empty() ? std::nullopt : std::optional(batch);
}

void BatchReader::detectEncoding() {
    encoding_ = Encoding::Utf8;
    const auto skip = [this](int first, int second) {
        if (in_.peek() != first) {
            return false;
        }
        in_.get();
        if (in_.peek() == second) {
            in_.get();
            return true;
        }
        in_.unget();
        return false;
    };
    if (skip(0xFF, 0xFE)) {
        encoding_ = Encoding::Utf16Little;
    } else if (skip(0xFE, 0xFF)) {
        encoding_ = Encoding::Utf16Big;
    } else if (skip(0xEF, 0xBB)) {
        in_.get();
    }
}

bool BatchReader::readLine(std::string& line) {
    if (encoding_ == Encoding::Unknown) {
        detectEncoding();
    }
    ++line_;
    if (encoding_ != Encoding::Utf8) {
        return readWideLine(line);
    }
    if (!std::getline(in_, line)) {
        return false;
    }
    if (const auto nul = line.find('\0'); nul != std::string::npos) {
        refuse(nul, "a NUL character; text in UTF-16 begins with its byte order mark");
    }
    if (const auto bad = sql::firstInvalidUtf8(line); bad < line.size()) {
        refuse(bad, "neither UTF-8 nor UTF-16 with its byte order mark");
    }
    return true;
}

void BatchReader::refuse(std::size_t byte, const char* why) const {
    throw NoText("line " + std::to_string(line_) + ", byte " + std::to_string(byte + 1) + ": " +
                 why);
}

bool BatchReader::readWideLine(std::string& line) {
    std::u16string wide;
    char bytes[2];
    bool any = false;
    while (in_.read(bytes, 2)) {
        any = true;
        const int low = encoding_ == Encoding::Utf16Little ? 0 : 1;
        const auto unit = static_cast<char16_t>(static_cast<unsigned char>(bytes[low]) |
                                                static_cast<unsigned char>(bytes[1 - low]) << 8);
        if (unit == u'\n') {
            break;
        }
        wide += unit;
    }
    if (in_.gcount() == 1) {
        refuse(wide.size() * 2, "half a character of UTF-16");
    }
    if (const auto nul = wide.find(u'\0'); nul != std::u16string::npos) {
        refuse(nul * 2, "a NUL character");
    }
    line = sql::toUtf8(wide);
    if (sql::toUtf16(line) != wide) {
        refuse(0, "half a surrogate pair of UTF-16");
    }
    return any;
}

} // namespace velcro::velsql
