// Whole documents against recorded trees: every trees/<case>.svg is read, and the tree dump
// followed by every report line must equal trees/<case>.txt. Each element of a case is one
// reading rule; the recording pins its result and its report lines together, in document
// order. UPDATE_GOLDEN=1 re-records.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "SVGParser/Describe.h"
#include "SVGParser/SVGParser.h"

namespace {

namespace fs = std::filesystem;

fs::path treeDirectory() {
  const char* root = std::getenv("SVGFIGURER_SOURCE_DIR");
  return root ? fs::path(root) / "tests/SVGParser/trees" : fs::path("SVGParser/trees");
}

std::string readFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream buffer;
  buffer << in.rdbuf();
  return buffer.str();
}

std::vector<std::string> caseNames() {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(treeDirectory(), error)) {
    if (entry.path().extension() == ".svg") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class TreeGolden : public testing::TestWithParam<std::string> {};

TEST_P(TreeGolden, TreeAndReportMatchRecording) {
  std::string actual;
  const SVGParser::Report report(
      [&](std::string_view line) { actual.append("report: ").append(line).append("\n"); });
  const auto svg = SVGParser::parse(readFile(treeDirectory() / (GetParam() + ".svg")), report);
  actual.insert(0, svg ? SVGParser::describeTree(*svg) : "refused\n");

  const auto expectedPath = treeDirectory() / (GetParam() + ".txt");
  if (const char* update = std::getenv("UPDATE_GOLDEN"); update && std::string(update) == "1") {
    std::ofstream(expectedPath, std::ios::binary) << actual;
    GTEST_SKIP() << "re-recorded " << expectedPath << ": review the diff before committing";
  }
  ASSERT_TRUE(fs::exists(expectedPath)) << "no recording; run with UPDATE_GOLDEN=1";
  EXPECT_EQ(readFile(expectedPath), actual);
}

INSTANTIATE_TEST_SUITE_P(Cases, TreeGolden, testing::ValuesIn(caseNames()),
                         [](const testing::TestParamInfo<std::string>& info) {
                           return info.param;
                         });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(TreeGolden);

}  // namespace
