#include "platform/sqlserver/odbc/StatementText.h"

#include "platform/sqlserver/TextScanner.h"

#include <algorithm>

namespace velcro::sql::odbc {

namespace {

using Place = TextScanner::Place;

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

bool isWordCharacter(char c) {
    return (lower(c) >= 'a' && lower(c) <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '#' ||
           c == '@' || c == '$' || static_cast<unsigned char>(c) >= 0x80;
}

bool sameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lower(x) == lower(y); });
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

class Rewriter
{
public:
    Rewriter(std::string_view batch, std::span<const Parameter> parameters, bool nationalLiterals)
        : batch_(batch)
        , parameters_(parameters)
        , nationalLiterals_(nationalLiterals) {
        result_.text.reserve(batch.size() + batch.size() / 8);
    }

    StatementText run() {
        while (at_ < batch_.size()) {
            const Place place = advance();
            if (place == Place::Literal) {
                takeLiteral();
            } else if (place == Place::Code && batch_[at_ - 1] == ':') {
                takeColon();
            } else {
                result_.text += batch_[at_ - 1];
            }
        }
        return std::move(result_);
    }

private:
    Place advance() {
        const char following = at_ + 1 < batch_.size() ? batch_[at_ + 1] : '\0';
        return scanner_.next(batch_[at_++], following);
    }

    /// Behind the opening quote.
    void takeLiteral() {
        const auto start = at_ - 1;
        while (at_ < batch_.size() && scanner_.place() == Place::Literal) {
            advance();
        }
        const auto literal = batch_.substr(start, at_ - start);
        if (nationalLiterals_ && !isAscii(literal)) {
            addMark(start);
        }
        result_.text += literal;
    }

    void addMark(std::size_t start) {
        const char before = start > 0 ? batch_[start - 1] : ' ';
        const bool marked =
            lower(before) == 'n' && (start < 2 || !isWordCharacter(batch_[start - 2]));
        if (!marked) {
            result_.text += isWordCharacter(before) ? " N" : "N";
        }
    }

    /// Behind the colon.
    void takeColon() {
        auto end = at_;
        while (end < batch_.size() && isWordCharacter(batch_[end])) {
            ++end;
        }
        const auto name = batch_.substr(at_, end - at_);
        const auto found =
            std::find_if(parameters_.begin(), parameters_.end(),
                         [name](const Parameter& p) { return sameName(p.name, name); });
        const bool ofAnotherWord =
            at_ > 1 && (batch_[at_ - 2] == ':' || isWordCharacter(batch_[at_ - 2]));
        if (found == parameters_.end() || ofAnotherWord) {
            result_.text += ':';
            return;
        }
        at_ = end; // letters, digits and signs change nothing about the scanner's place
        if (std::holds_alternative<std::monostate>(found->value)) {
            result_.text += "NULL";
        } else {
            result_.text += '?';
            result_.markers.push_back(&*found);
        }
    }

    std::string_view batch_;
    std::span<const Parameter> parameters_;
    bool nationalLiterals_;
    TextScanner scanner_;
    std::size_t at_ = 0;
    StatementText result_;
};

} // namespace

StatementText prepareText(std::string_view batch, std::span<const Parameter> parameters,
                          bool nationalLiterals) {
    if (parameters.empty() && (!nationalLiterals || isAscii(batch))) {
        return {std::string(batch), {}};
    }
    return Rewriter(batch, parameters, nationalLiterals).run();
}

} // namespace velcro::sql::odbc
