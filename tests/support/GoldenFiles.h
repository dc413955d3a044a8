// Recorded texts beside the tests: where they live, how they are read, and the one rule for
// comparing against them. UPDATE_GOLDEN=1 re-records instead, for review before committing.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace golden {

namespace fs = std::filesystem;

// `folder` below tests/ of the source tree; ctest runs the programs from tests/ itself.
inline fs::path directory(const std::string& folder) {
  const char* root = std::getenv("SVGFIGURER_SOURCE_DIR");
  return root ? fs::path(root) / "tests" / folder : fs::path(folder);
}

inline std::string read(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream buffer;
  buffer << in.rdbuf();
  return buffer.str();
}

// The names of the folder's `.svg` files without the extension, sorted.
inline std::vector<std::string> cases(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    if (entry.path().extension() == ".svg") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// `actual` must equal the recording at `path`. An optional recording may be absent, which
// stands for the empty text, and is not written when the text is empty.
inline void expectRecorded(const fs::path& path, const std::string& actual, bool optional = false) {
  if (const char* update = std::getenv("UPDATE_GOLDEN"); update && std::string(update) == "1") {
    if (optional && actual.empty()) {
      fs::remove(path);
    } else {
      std::ofstream(path, std::ios::binary) << actual;
    }
    GTEST_SKIP() << "re-recorded " << path << ": review the diff before committing";
  }
  if (!optional) {
    ASSERT_TRUE(fs::exists(path)) << "no recording " << path << "; run with UPDATE_GOLDEN=1";
  }
  EXPECT_EQ(fs::exists(path) ? read(path) : std::string(), actual) << path;
}

}  // namespace golden
