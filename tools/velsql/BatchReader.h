// Splits a script into batches at its GO lines.
#pragma once

#include "platform/sqlserver/TextScanner.h"

#include <istream>
#include <optional>
#include <stdexcept>
#include <string>

namespace velcro::velsql {

/// What makes a script no text; what() says where and why.
struct NoText : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

struct Batch
{
    std::string text;
    int line = 1;  // of the script, where the text begins
    int count = 1; // of "GO <count>": how many times it runs
};

/// Reads as far as the next GO line only, so that a script may come from a person or a pipe. Files
/// in UTF-16 are understood by their byte order mark. Throws NoText for what is neither UTF-8 nor
/// UTF-16, and for a NUL character, which would end the text for a driver.
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
    [[noreturn]] void refuse(std::size_t byte, const char* why) const;

    enum class Encoding { Unknown, Utf8, Utf16Little, Utf16Big };

    std::istream& in_;
    Encoding encoding_ = Encoding::Unknown;
    int line_ = 0; // that was read last
};

} // namespace velcro::velsql
