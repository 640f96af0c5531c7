#include "CorpusFile.h"

#include <sstream>
#include <stdexcept>

namespace velcro::fuzz {

namespace {

constexpr const char* engine = "mssql";

/// Takes the conditions off the front; false when they leave this engine out.
bool isForThisEngine(std::vector<std::string>& block) {
    bool wanted = true;
    while (!block.empty()) {
        std::istringstream words(block.front());
        std::string word;
        std::string name;
        words >> word >> name;
        if (word != "skipif" && word != "onlyif") {
            break;
        }
        wanted = wanted && (word == "onlyif") == (name == engine);
        block.erase(block.begin());
    }
    return wanted && !block.empty();
}

/// False for a block that is neither a statement nor a query.
bool readHead(const std::string& head, CorpusRecord& record) {
    std::istringstream words(head);
    std::string kind;
    std::string second;
    words >> kind >> second;
    if (kind == "statement") {
        record.kind = CorpusRecord::Kind::Statement;
        record.mustFail = second == "error";
        return true;
    }
    record.kind = CorpusRecord::Kind::Query;
    record.types = second;
    record.order = "nosort";
    words >> record.order;
    return kind == "query";
}

} // namespace

CorpusFile::CorpusFile(const std::filesystem::path& path)
    : in_(path) {
    if (!in_) {
        throw std::runtime_error(path.string() + " cannot be read");
    }
}

bool CorpusFile::readLine(std::string& line) {
    if (!std::getline(in_, line)) {
        return false;
    }
    ++line_;
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return true;
}

/// The lines up to the next blank one, without comments; false at the end of the file.
bool CorpusFile::readBlock(std::vector<std::string>& block) {
    block.clear();
    std::string line;
    while (readLine(line)) {
        if (line.empty() && !block.empty()) {
            return true;
        }
        if (!line.empty() && line.front() != '#') {
            block.push_back(line);
        }
    }
    return !block.empty();
}

bool CorpusFile::next(CorpusRecord& record) {
    std::vector<std::string> block;
    while (readBlock(block)) {
        const std::size_t end = line_;
        const std::size_t lines = block.size();
        if (!isForThisEngine(block)) {
            continue;
        }
        if (block.front().starts_with("halt")) {
            return false;
        }
        record = {};
        if (!readHead(block.front(), record)) {
            continue;
        }
        record.line = end - lines;
        bool results = false;
        for (std::size_t i = 1; i < block.size(); ++i) {
            if (results) {
                record.expected.push_back(block[i]);
            } else if (block[i] == "----") {
                results = true;
            } else {
                record.sql += block[i] + "\n";
            }
        }
        return true;
    }
    return false;
}

} // namespace velcro::fuzz
