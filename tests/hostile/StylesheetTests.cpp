// Large stylesheets against many elements: each element's style must cost what the element
// uses, not what the stylesheet holds.
#include <functional>
#include <string>

#include "HostileSupport.h"

namespace {

using Hostile::convert;

constexpr int ruleCount = 100'000;

std::string elements(int count, const std::function<std::string(int)>& attributes) {
  std::string out;
  for (int i = 0; i < count; ++i) out += "<rect width=\"1\" height=\"1\" " + attributes(i) + "/>";
  return out;
}

struct StylesheetCase {
  const char* name;
  std::function<std::string()> text;
  std::size_t shapes;          // shapes expected in the output
  const char* expectedInText;  // a fragment the generated text must hold
  std::size_t reportLines;     // exact count of report lines
};

class LargeStylesheet : public testing::TestWithParam<StylesheetCase> {};

TEST_P(LargeStylesheet, ConvertsWithTheRulesApplied) {
  const auto& row = GetParam();
  const auto outcome = convert(row.text());
  ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
  EXPECT_EQ(outcome.model().childTypes.size(), row.shapes);
  EXPECT_NE(outcome.swift.find(row.expectedInText), std::string::npos);
  EXPECT_EQ(outcome.lines.size(), row.reportLines);
}

const StylesheetCase stylesheetCases[] = {
    // One rule per class, and as many elements, each naming its own class.
    {"oneRulePerElement",
     [] {
       std::string css;
       for (int i = 0; i < ruleCount; ++i) {
         css += ".c" + std::to_string(i) + "{stroke-width:" + std::to_string(i % 7 + 1) + "}";
       }
       return Hostile::document("<style>" + css + "</style>" + elements(20'000, [](int i) {
                                  return "stroke=\"red\" class=\"c" + std::to_string(i * 5) + "\"";
                                }));
     },
     20'000, "lineWidth: 6", 0},
    // Every rule for the same class, each naming a property of its own: one style of 100 000
    // properties that every element takes.
    {"oneClassManyProperties",
     [] {
       std::string css;
       for (int i = 0; i < ruleCount; ++i) css += ".c{p" + std::to_string(i) + ":1}";
       css += ".c{fill:#00ff00}";
       return Hostile::document("<style>" + css + "</style>" +
                                elements(20'000, [](int) { return "class=\"c\""; }));
     },
     20'000, "Color(red: 0, green: 1, blue: 0)", 0},
    // The same for an id that every element repeats, each with a style attribute of many
    // declarations.
    {"oneIdManyProperties",
     [] {
       std::string css;
       for (int i = 0; i < ruleCount; ++i) css += "#r{q" + std::to_string(i) + ":2}";
       std::string style;
       for (int i = 0; i < 900; ++i) style += "s" + std::to_string(i) + ":3;";
       return Hostile::document("<style>" + css + "</style>" + elements(1'000, [&](int) {
                                  return "id=\"r\" style=\"" + style + "fill:#0000ff\"";
                                }));
     },
     1'000, "Color(red: 0, green: 0, blue: 1)", 0},
    // Selectors the reader drops, each reported once.
    {"unsupportedSelectors",
     [] {
       std::string css;
       for (int i = 0; i < ruleCount; ++i) css += "rect>g" + std::to_string(i) + "{fill:red}";
       return Hostile::document("<style>" + css + "</style><circle r=\"1\"/>");
     },
     1, "Circle()", ruleCount},
    // Many classes on one element: only the first hundred blanks cut the attribute.
    {"manyClassesPerElement",
     [] {
       std::string css, classes;
       for (int i = 0; i < 1'000; ++i) {
         css += ".k" + std::to_string(i) + "{stroke-width:" + std::to_string(i) + "}";
         classes += "k" + std::to_string(i) + " ";
       }
       return Hostile::document("<style>" + css + "</style>" + elements(500, [&](int) {
                                  return "stroke=\"red\" class=\"" + classes + "\"";
                                }));
     },
     500, "lineWidth: 99", 0},
    // Comment closers without openers, and an opener never closed that hides the rest.
    {"commentNoise",
     [] {
       std::string css;
       for (int i = 0; i < ruleCount; ++i) css += "*/ .a{fill:red} ";
       css += ".b{fill:#0000ff} /* .b{fill:red}";
       for (int i = 0; i < ruleCount; ++i) css += "/*";
       return Hostile::document("<style>" + css + "</style><circle class=\"b\" r=\"1\"/>");
     },
     1, "Color(red: 0, green: 0, blue: 1)", ruleCount},
};

INSTANTIATE_TEST_SUITE_P(Hostile, LargeStylesheet, testing::ValuesIn(stylesheetCases),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
