#pragma once

#include <string>

namespace zelvo::test {

/// Compares a recording, a file of the tests, with what is recorded now. What differs is left
/// beside the programs, to be looked at and put in the place of the recording if it is as it should
/// be. `isHeading` tells which lines say where in the recording a line is.
void ExpectAsRecorded(const std::string& file, const std::string& now,
                      bool (*isHeading)(const std::string& line));

/// A file of the tests.
std::string ReadTestFile(const std::string& file);

}  // namespace zelvo::test
