#include "tests/recorded.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

namespace zelvo::test {

std::string ReadTestFile(const std::string& file) {
  std::ifstream stream(ZELVO_SOURCE_DIR "/tests/" + file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void ExpectAsRecorded(const std::string& file, const std::string& now,
                      bool (*isHeading)(const std::string& line)) {
  const std::string recorded = ReadTestFile(file);
  if (recorded == now) return;
  std::string left = file;
  std::ranges::replace(left, '/', '-');
  left.insert(0, ZELVO_PROGRAMS "/");
  std::ofstream(left) << now;
  std::istringstream was(recorded), is(now);
  std::string heading, line, other;
  while (std::getline(was, line) && std::getline(is, other) && line == other) {
    if (isHeading(line)) heading = line;
  }
  ADD_FAILURE() << file << ", after " << heading << "\nrecorded: " << line
                << "\nnow:      " << other << "\nall of it: " << left;
}

}  // namespace zelvo::test
