// Splits a script into batches at its GO lines.
#pragma once

#include "platform/sqlserver/TextScanner.h"

#include <istream>
#include <optional>
#include <string>

namespace velcro::velsql {

struct Batch
{
    std::string text;
    int count = 1; // of "GO <count>": how many times it runs
};

/// Reads as far as the next GO line only, so that a script may come from a person or a pipe. Files
/// in UTF-16 are understood by their byte order mark.
class BatchReader
{
public:
    explicit BatchReader(std::istream& in)
        : in_(in) {}

    /// The next batch that is not blank; nothing at the end.
    std::optional<Batch> next();

private:
    bool readLine(std::string& line);
    bool readWideLine(std::string& line);
    void detectEncoding();

    enum class Encoding { Unknown, Utf8, Utf16Little, Utf16Big };

    std::istream& in_;
    Encoding encoding_ = Encoding::Unknown;
};

} // namespace velcro::velsql
