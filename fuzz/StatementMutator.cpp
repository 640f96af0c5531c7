#include "StatementMutator.h"

#include "Grammar.h"

#include <algorithm>
#include <cctype>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(unsigned char* data, std::size_t size, std::size_t maximum);

namespace {

/// Each with the blanks before it, so that joined they are the text again.
using Tokens = std::vector<std::string>;

const Grammar& grammar() {
    static const Grammar read(FUZZ_FOLDER "/session.grammar");
    return read;
}

bool isWordPart(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || (c & 0x80) != 0 ||
           std::string_view("_#@$.").find(c) != std::string_view::npos;
}

std::size_t endOfToken(std::string_view text, std::size_t at) {
    const char first = text[at];
    if (first == '\'' || first == '"' || first == '[') {
        const auto close = text.find(first == '[' ? ']' : first, at + 1);
        return close == std::string_view::npos ? text.size() : close + 1;
    }
    if (!isWordPart(first)) {
        return at + 1;
    }
    while (at < text.size() && isWordPart(text[at])) {
        ++at;
    }
    return at;
}

Tokens tokensOf(std::string_view text) {
    Tokens tokens;
    while (!text.empty()) {
        std::size_t at = 0;
        while (at < text.size() && std::isspace(static_cast<unsigned char>(text[at])) != 0) {
            ++at;
        }
        const auto end = at < text.size() ? endOfToken(text, at) : at;
        tokens.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return tokens;
}

char firstMark(const std::string& token) {
    const auto at = token.find_first_not_of(" \t\r\n");
    return at == std::string::npos ? ' ' : token[at];
}

/// From an opening bracket to behind its closing one; from anything else to behind a few tokens.
std::size_t endOfPiece(const Tokens& tokens, std::size_t begin, Random& random) {
    if (firstMark(tokens[begin]) != '(') {
        return std::min(tokens.size(), begin + 1 + pick(random, 6));
    }
    int open = 0;
    for (std::size_t i = begin; i < tokens.size(); ++i) {
        open += firstMark(tokens[i]) == '(' ? 1 : firstMark(tokens[i]) == ')' ? -1 : 0;
        if (open == 0) {
            return i + 1;
        }
    }
    return tokens.size();
}

struct Piece
{
    std::size_t begin;
    std::size_t end;
};

Piece anyPiece(const Tokens& tokens, Random& random) {
    const auto begin = pick(random, tokens.size());
    return {begin, endOfPiece(tokens, begin, random)};
}

Tokens copyOf(const Tokens& tokens, Piece piece) {
    return {tokens.begin() + static_cast<std::ptrdiff_t>(piece.begin),
            tokens.begin() + static_cast<std::ptrdiff_t>(piece.end)};
}

void replace(Tokens& tokens, Piece piece, const Tokens& by) {
    const auto begin = tokens.begin() + static_cast<std::ptrdiff_t>(piece.begin);
    tokens.erase(begin, begin + static_cast<std::ptrdiff_t>(piece.end - piece.begin));
    tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(piece.begin), by.begin(), by.end());
}

std::string made(const char* rule, Random& random) {
    return " " + grammar().text(rule, 1 + static_cast<int>(pick(random, 4)), random);
}

/// Another of its kind: a literal for a literal, a name for a name, a bracket's content anew.
void replaceByItsKind(Tokens& tokens, Random& random) {
    const auto at = pick(random, tokens.size());
    const char mark = firstMark(tokens[at]);
    if (mark == '(') {
        const bool select = pick(random, 2) == 0;
        replace(tokens, {at, endOfPiece(tokens, at, random)},
                {" (" + made(select ? "select" : "value", random) + ")"});
    } else if (mark == '\'' || std::isdigit(static_cast<unsigned char>(mark)) != 0) {
        tokens[at] = made("literal", random);
    } else if (isWordPart(mark) || mark == '[') {
        tokens[at] = made(pick(random, 3) == 0 ? "keyword" : "name", random);
    } else {
        tokens[at] = made("operator", random);
    }
}

/// A statement of its own, before, behind, or as the next batch.
void addStatement(Tokens& tokens, Random& random) {
    const std::string statement = made("statement", random);
    switch (pick(random, 3)) {
    case 0:
        tokens.insert(tokens.begin(), statement + "\n");
        break;
    case 1:
        tokens.push_back("\n" + statement);
        break;
    default:
        tokens.push_back("\nGO\n" + statement);
    }
}

/// A value or a condition in the place of a word or a bracket.
void replaceByMade(Tokens& tokens, const char* rule, Random& random) {
    const auto at = pick(random, tokens.size());
    const bool bracket = firstMark(tokens[at]) == '(';
    replace(tokens, {at, bracket ? endOfPiece(tokens, at, random) : at + 1},
            {" (" + made(rule, random) + ")"});
}

/// What breaks most statements, but reaches what no grammar thinks of.
void shuffle(Tokens& tokens, Random& random) {
    const Piece piece = anyPiece(tokens, random);
    const Tokens copy = pick(random, 3) == 0 ? Tokens() : copyOf(tokens, anyPiece(tokens, random));
    const auto at = pick(random, tokens.size() + 1);
    replace(tokens, pick(random, 2) == 0 ? piece : Piece{at, at}, copy);
}

void change(Tokens& tokens, Random& random) {
    const auto kind = tokens.empty() ? 0 : pick(random, 12);
    if (kind < 3) {
        addStatement(tokens, random);
    } else if (kind < 5) {
        replaceByMade(tokens, "value", random);
    } else if (kind == 5) {
        replaceByMade(tokens, "condition", random);
    } else if (kind == 6) {
        shuffle(tokens, random);
    } else if (kind == 7) {
        tokens = {made("statement", random), "\n" + made("statement", random)};
    } else {
        replaceByItsKind(tokens, random);
    }
}

std::size_t putOut(const Tokens& tokens, unsigned char* out, std::size_t maximum) {
    std::string text;
    for (const auto& token : tokens) {
        text += token;
    }
    const auto size = std::min(text.size(), maximum);
    std::memcpy(out, text.data(), size);
    return size;
}

} // namespace

std::size_t mutateStatements(unsigned char* data, std::size_t size, std::size_t maximum,
                             unsigned int seed) {
    Random random(seed);
    if (pick(random, 40) == 0) {
        return LLVMFuzzerMutate(data, size, maximum);
    }
    Tokens tokens = tokensOf({reinterpret_cast<const char*>(data), size});
    do {
        change(tokens, random);
    } while (pick(random, 4) == 0);
    return putOut(tokens, data, maximum);
}

std::size_t crossStatements(std::string_view first, std::string_view second, unsigned char* out,
                            std::size_t maximum, unsigned int seed) {
    Random random(seed);
    Tokens tokens = tokensOf(first);
    const Tokens others = tokensOf(second);
    if (tokens.empty() || others.empty()) {
        return putOut(tokens, out, maximum);
    }
    Tokens copy = pick(random, 4) == 0 ? others : copyOf(others, anyPiece(others, random));
    if (copy.size() == others.size()) {
        copy.front().insert(0, pick(random, 2) == 0 ? "\nGO\n" : "\n");
        tokens.insert(tokens.end(), copy.begin(), copy.end());
    } else {
        replace(tokens, anyPiece(tokens, random), copy);
    }
    return putOut(tokens, out, maximum);
}
