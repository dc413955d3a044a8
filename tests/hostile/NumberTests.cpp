// Extreme numbers in every numeric attribute the reader knows: each value of one table goes
// into each attribute of the other, and the whole document must still convert to a complete
// file, the same one every time.
#include <sstream>
#include <string>
#include <vector>

#include "HostileSupport.h"
#include "support/GoldenFiles.h"

namespace {

using Hostile::convert;

struct NumericAttribute {
  std::string name;
  std::string body;  // "{}" stands for the number, wherever it occurs
  std::string rootAttributes;
};

// The attributes live in hostile/numbers.txt, one a line.
std::vector<NumericAttribute> numericAttributes() {
  std::vector<NumericAttribute> rows;
  std::istringstream lines(golden::read(golden::directory("hostile") / "numbers.txt"));
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    NumericAttribute row;
    std::getline(fields, row.name, '\t');
    std::getline(fields, row.body, '\t');
    std::getline(fields, row.rootAttributes);
    rows.push_back(row);
  }
  return rows;
}

const char* const hostileNumbers[] = {"1e308",      "-1e308",
                                      "1e-320",     "NaN",
                                      "Infinity",   "-Infinity",
                                      "nan",        "-inf",
                                      "1e309",      "-0",
                                      "0x1p3",      "1e-400",
                                      "2147483648", "-9223372036854775809",
                                      "4294967296", "1.7976931348623157e308"};

std::string substitute(std::string_view pattern, std::string_view number) {
  std::string out;
  std::size_t start = 0;
  for (auto at = pattern.find("{}"); at != std::string_view::npos; at = pattern.find("{}", start)) {
    out.append(pattern.substr(start, at - start)).append(number);
    start = at + 2;
  }
  out.append(pattern.substr(start));
  return out;
}

class ExtremeNumber : public testing::TestWithParam<NumericAttribute> {};

// One test per attribute, looping over the numbers: a thousand separate processes would spend
// more time starting than converting.
TEST_P(ExtremeNumber, ConvertsToACompleteFileDeterministically) {
  const auto& attribute = GetParam();
  for (const char* number : hostileNumbers) {
    SCOPED_TRACE(number);
    const auto text = Hostile::document(substitute(attribute.body, number),
                                        substitute(attribute.rootAttributes, number));
    const auto first = convert(text);
    ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(first));
    const auto second = convert(text);
    EXPECT_EQ(first.swift, second.swift);
    EXPECT_EQ(first.lines, second.lines);
  }
}

INSTANTIATE_TEST_SUITE_P(Hostile, ExtremeNumber, testing::ValuesIn(numericAttributes()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
