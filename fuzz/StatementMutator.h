// Changes T-SQL texts the way a fuzzer does it, but by words, brackets and whole statements, so that
// most of what comes out is still read.
#pragma once

#include <cstddef>
#include <string_view>

/// Changes the bytes in place; gives their new number.
std::size_t mutateStatements(unsigned char* data, std::size_t size, std::size_t maximum,
                             unsigned int seed);

/// Puts a piece of the second text into the first; gives the number of bytes put out.
std::size_t crossStatements(std::string_view first, std::string_view second, unsigned char* out,
                            std::size_t maximum, unsigned int seed);
