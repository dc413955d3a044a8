// Whole generated files against recorded ones: every tests/golden/<case>.svg is converted with
// the settings of <case>.config.json (a flat object of Config fields; absent means default)
// and compared with <case>.swift. A failure prints a unified diff; UPDATE_GOLDEN=1 re-records.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"

namespace {

namespace fs = std::filesystem;

fs::path goldenDirectory() {
  if (const char* root = std::getenv("SVGFIGURER_SOURCE_DIR"))
    return fs::path(root) / "tests/golden";
  return fs::path("golden");
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
  for (const auto& entry : fs::directory_iterator(goldenDirectory(), error)) {
    if (entry.path().extension() == ".svg") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

SVGSwiftUIExporter::Config configFrom(const nlohmann::json& json) {
  SVGSwiftUIExporter::Config config;
  const auto set = [&json](const char* key, auto& field) {
    if (json.contains(key)) json.at(key).get_to(field);
  };
  const auto setOptional = [&json](const char* key, std::optional<std::string>& field) {
    if (!json.contains(key)) return;
    if (json.at(key).is_null()) {
      field.reset();
    } else {
      field = json.at(key).get<std::string>();
    }
  };
  set("rootViewName", config.rootViewName);
  set("indentString", config.indentString);
  set("shapeTypePrefix", config.shapeTypePrefix);
  set("pathMethodPrefix", config.pathMethodPrefix);
  set("infoComments", config.infoComments);
  set("generatePreviewProvider", config.generatePreviewProvider);
  set("exportHexColorExtension", config.exportHexColorExtension);
  set("generateImport", config.generateImport);
  set("newlineAfterClosePath", config.newlineAfterClosePath);
  set("frameAsProperty", config.frameAsProperty);
  set("assumeDefaultStrokeStyle", config.assumeDefaultStrokeStyle);
  set("indentEmptyLines", config.indentEmptyLines);
  set("preferInitOverType", config.preferInitOverType);
  set("positionUsingPadding", config.positionUsingPadding);
  set("preferMultilineConstants", config.preferMultilineConstants);
  set("modifiersForInlinableFilters", config.modifiersForInlinableFilters);
  set("inlineFiltersIfPossible", config.inlineFiltersIfPossible);
  set("useThousandsSeparator", config.useThousandsSeparator);
  set("maximumFractionDigits", config.maximumFractionDigits);
  set("verbatimTexts", config.verbatimTexts);
  setOptional("modifierSectionComment", config.modifierSectionComment);
  setOptional("nestedViewsSectionComment", config.nestedViewsSectionComment);
  set("compilableSwift", config.compilableSwift);
  return config;
}

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    const auto end = text.find('\n', start);
    if (end == std::string::npos) {
      lines.push_back(text.substr(start) + "\\ No newline at end of file");
      break;
    }
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

// A unified diff with three lines of context, from the longest common subsequence.
std::string unifiedDiff(const std::string& expected, const std::string& actual) {
  const auto a = splitLines(expected), b = splitLines(actual);
  const std::size_t n = a.size(), m = b.size();
  std::vector<std::vector<std::size_t>> lcs(n + 1, std::vector<std::size_t>(m + 1, 0));
  for (std::size_t i = n; i-- > 0;) {
    for (std::size_t j = m; j-- > 0;) {
      lcs[i][j] = a[i] == b[j] ? lcs[i + 1][j + 1] + 1 : std::max(lcs[i + 1][j], lcs[i][j + 1]);
    }
  }
  struct Row {
    char mark;
    std::string line;
  };
  std::vector<Row> rows;
  std::size_t i = 0, j = 0;
  while (i < n || j < m) {
    if (i < n && j < m && a[i] == b[j]) {
      rows.push_back({' ', a[i++]});
      ++j;
    } else if (j < m && (i == n || lcs[i][j + 1] >= lcs[i + 1][j])) {
      rows.push_back({'+', b[j++]});
    } else {
      rows.push_back({'-', a[i++]});
    }
  }
  std::string out = "--- expected\n+++ actual\n";
  constexpr std::size_t context = 3;
  std::size_t lastShown = 0;
  bool any = false;
  for (std::size_t r = 0; r < rows.size(); ++r) {
    if (rows[r].mark == ' ') continue;
    const std::size_t from = r >= context ? r - context : 0;
    std::size_t to = r;
    while (to + 1 < rows.size() && (rows[to + 1].mark != ' ' || [&] {
             for (std::size_t k = to + 1; k < rows.size() && k <= to + 2 * context; ++k) {
               if (rows[k].mark != ' ') return true;
             }
             return false;
           }())) {
      ++to;
    }
    to = std::min(rows.size() - 1, to + context);
    if (!any || from > lastShown) out += "@@\n";
    for (std::size_t k = std::max(from, any ? lastShown : from); k <= to; ++k) {
      out += rows[k].mark + rows[k].line + "\n";
    }
    lastShown = to + 1;
    any = true;
    r = to;
  }
  return out;
}

class GoldenTest : public testing::TestWithParam<std::string> {};

TEST_P(GoldenTest, GeneratedTextMatchesRecording) {
  const auto directory = goldenDirectory();
  const auto svgText = readFile(directory / (GetParam() + ".svg"));
  const auto configPath = directory / (GetParam() + ".config.json");
  SVGSwiftUIExporter::Config config;
  if (fs::exists(configPath)) config = configFrom(nlohmann::json::parse(readFile(configPath)));

  const auto svg = SVGParser::parse(svgText, {});
  ASSERT_TRUE(svg.has_value()) << "the case's SVG does not parse";
  const auto actual = SVGSwiftUIExporter::generate(*svg, config);

  const auto expectedPath = directory / (GetParam() + ".swift");
  if (const char* update = std::getenv("UPDATE_GOLDEN"); update && std::string(update) == "1") {
    std::ofstream(expectedPath, std::ios::binary) << actual;
    GTEST_SKIP() << "re-recorded " << expectedPath << ": review the diff before committing";
  }
  ASSERT_TRUE(fs::exists(expectedPath)) << "no recording; run with UPDATE_GOLDEN=1";
  const auto expected = readFile(expectedPath);
  EXPECT_TRUE(expected == actual) << unifiedDiff(expected, actual);
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenTest, testing::ValuesIn(caseNames()),
                         [](const testing::TestParamInfo<std::string>& info) {
                           std::string name = info.param;
                           for (auto& c : name) {
                             if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                           }
                           return name;
                         });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(GoldenTest);

}  // namespace
