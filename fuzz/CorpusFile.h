// The records of a file of the public sqllogictest corpus, as engine "mssql" is to read them.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace velcro::fuzz {

struct CorpusRecord
{
    enum class Kind { Statement, Query };
    Kind kind = Kind::Statement;
    bool mustFail = false; // of a statement
    std::string types;     // of a query's columns: I, R or T
    std::string order;     // of its values: nosort, rowsort or valuesort
    std::string sql;
    std::vector<std::string> expected; // values, or the one line "<n> values hashing to <md5>"
    std::size_t line = 0;              // of its first line, 1 upward
};

class CorpusFile
{
public:
    /// Throws std::runtime_error when the file cannot be opened.
    explicit CorpusFile(const std::filesystem::path& path);

    /// False at the end. Records for other engines are passed over; what is neither a statement nor a
    /// query (hash-threshold) too, and "halt" is the end.
    bool next(CorpusRecord& record);

private:
    bool readLine(std::string& line);
    bool readBlock(std::vector<std::string>& block);

    std::ifstream in_;
    std::size_t line_ = 0;
};

} // namespace velcro::fuzz
