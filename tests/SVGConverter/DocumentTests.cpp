// Whole documents through the reader and the conversion.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ConverterTestSupport.h"
#include "SVGParser/SVGParser.h"

using namespace ConverterTest;
using SwiftUIModel::ContainerViewType;
using SwiftUIModel::Paint;

namespace {

ContainerViewType convertText(const std::string& text, Collected& collected) {
  auto svg = SVGParser::parse(text, collected.report());
  if (!svg) {
    ADD_FAILURE() << "reader gave nothing for " << text;
    return {};
  }
  return SVGSwiftUIFigurer::makeModel(*svg, "", collected.report());
}

TEST(Documents, GradientReferencedBeforeItsDefinitionResolves) {
  Collected collected;
  const auto result = convertText(
      R"svg(<svg xmlns="http://www.w3.org/2000/svg"><circle r="1" fill="url(#a)" fill-opacity="0.5"/>)svg"
      R"svg(<linearGradient id="a"><stop offset="0"/></linearGradient></svg>)svg",
      collected);
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(result, 0).drawing.fill,
            Paint::property("Group1.a"));
}

TEST(Documents, FragmentPathConvertsWithFoldedLines) {
  Collected collected;
  const auto result = convertText(R"svg(<path d="M0 0 L1 1 L2 2 Z"/>)svg", collected);
  const auto& path = child<SwiftUIModel::PathViewType>(result, 0).shapeType.path;
  EXPECT_EQ(path, (std::vector<SwiftUIModel::PathCommand>{
                      SwiftUIModel::PathCommand::addLines({{0, 0}, {1, 1}, {2, 2}}),
                      SwiftUIModel::PathCommand::closeSubpath()}));
}

TEST(Documents, LeadingLinesWithoutMoveDoNotStopTheConversion) {
  Collected collected;
  const auto result = convertText(R"svg(<path d="L1 1 L2 2"/>)svg", collected);
  EXPECT_EQ(child<SwiftUIModel::PathViewType>(result, 0).shapeType.path.size(), 2u);
}

TEST(Documents, FilterWarningsGoToTheSink) {
  Collected collected;
  const auto result = convertText(
      R"svg(<svg xmlns="http://www.w3.org/2000/svg"><filter id="f"><feGaussianBlur stdDeviation="1"/>)svg"
      R"svg(<feFlood/><feMerge><feMergeNode in="nope"/></feMerge></filter>)svg"
      R"svg(<rect width="1" height="1" filter="url(#f)"/><image/></svg>)svg",
      collected);
  EXPECT_TRUE(child<SwiftUIModel::RectangleViewType>(result, 0).drawing.filterModifier);
  const std::vector<std::string> expected{"WARN: Unsupported filter primitive: flood",
                                          "ERROR: Missing filter merge node: nope",
                                          "SVG image nodes are not supported, sorry!"};
  EXPECT_EQ(collected.lines, expected);
}

// The reader accepts a thousand levels; the conversion keeps the first 256 and says so once.
TEST(Documents, DeeplyNestedGroupsAreCutWithOneReport) {
  std::string text = R"svg(<svg xmlns="http://www.w3.org/2000/svg">)svg";
  for (int i = 0; i < 900; ++i) text += "<g>";
  text += R"svg(<circle r="1"/>)svg";
  for (int i = 0; i < 900; ++i) text += "</g>";
  text += "</svg>";
  Collected collected;
  const auto result = convertText(text, collected);
  EXPECT_EQ(result.childTypes.size(), 1u);
  ASSERT_EQ(collected.lines.size(), 1u);
  EXPECT_EQ(collected.lines[0],
            "Containers nested deeper than 256 levels are not supported, dropping: g");
}

TEST(Documents, HugeNumbersAndNonFiniteValuesSurvive) {
  Collected collected;
  const auto result = convertText(
      R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="1e308" height="inf">)svg"
      R"svg(<path d="M0 0 A99999999999999999999 0 720 0 1 9 1"/><circle r="nan" cx="1e308"/>)svg"
      R"svg(<text x="inf">t</text></svg>)svg",
      collected);
  EXPECT_EQ(result.childTypes.size(), 3u);
  (void)SVGConverter::describeModel(result);
}

}  // namespace
