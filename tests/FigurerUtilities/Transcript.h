// Recorded transcripts, shared by the tests of the program's modules: a file under tests/ whose
// lines starting with "< " are inputs, each followed by the lines its answer gives (each starting
// with "> "). The test rebuilds the file from its inputs and must get it back unchanged, so the
// expected texts live in the file, not in the code. UPDATE_GOLDEN=1 records the rebuilt file.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

namespace Transcript {

// A file under tests/, found through the source folder the test runner names, or else from
// tests/ as the working folder.
inline std::filesystem::path testsPath(const std::string& relative) {
  const char* root = std::getenv("SVGFIGURER_SOURCE_DIR");
  return root ? std::filesystem::path(root) / "tests" / relative : std::filesystem::path(relative);
}

// Texts on one line: "\n", "\\" and "\xHH" (for other control bytes and for the byte 0xFF,
// which is never UTF-8) stand for what they name.
inline std::string escape(std::string_view text) {
  std::string out;
  for (const unsigned char c : text) {
    char escaped[5] = {char(c), 0};
    if (c == '\n' || c == '\\') {
      std::snprintf(escaped, sizeof escaped, "\\%c", c == '\n' ? 'n' : '\\');
    } else if (c < 0x20 || c == 0xFF) {
      std::snprintf(escaped, sizeof escaped, "\\x%02X", c);
    }
    out += escaped;
  }
  return out;
}

inline std::string unescape(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = i + 1 < text.size() && text[i] == '\\' ? text[++i] : '\0';
    if (c == 'x' && i + 2 < text.size()) {
      out += char(std::stoi(std::string(text.substr(i + 1, 2)), nullptr, 16));
      i += 2;
    } else {
      out += c == '\0' ? text[i] : c == 'n' ? '\n' : c;
    }
  }
  return out;
}

inline void expect(const std::string& relative,
                   const std::function<std::string(const std::string& input)>& answer) {
  const auto path = testsPath(relative);
  std::ifstream in(path, std::ios::binary);
  ASSERT_TRUE(in) << "no transcript at " << path;
  std::stringstream recorded;
  recorded << in.rdbuf();
  std::string rebuilt;
  std::istringstream lines(recorded.str());
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("> ")) continue;
    rebuilt += line + "\n";
    if (line.starts_with("< ")) rebuilt += answer(line.substr(2));
  }
  if (std::getenv("UPDATE_GOLDEN") != nullptr) {
    std::ofstream(path, std::ios::binary) << rebuilt;
    return;
  }
  EXPECT_EQ(rebuilt, recorded.str()) << "in " << path;
}

}  // namespace Transcript
