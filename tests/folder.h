#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace zelvo::test {

/// A folder of its own that goes when the test is over.
struct Folder {
  Folder() { EXPECT_NE(mkdtemp(path.data()), nullptr); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(path); }
  std::string File(const std::string& name) const { return path + "/" + name; }
  /// So many things lie in it.
  std::ptrdiff_t Count() const {
    return std::distance(std::filesystem::directory_iterator(path), {});
  }
  std::string path = testing::TempDir() + "zelvo-XXXXXX";
};

inline void Write(const std::string& path, const std::string& text) { std::ofstream(path) << text; }

}  // namespace zelvo::test
