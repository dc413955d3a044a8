// Whole documents through the reader and the conversion.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ConverterTestSupport.h"
#include "SVGParser/SVGParser.h"

using namespace ConverterTest;
using SwiftUIModel::ContainerViewType;

namespace {

ContainerViewType convertText(const std::string& text, Collected& collected) {
  auto svg = SVGParser::parse(text, collected.report());
  if (!svg) {
    ADD_FAILURE() << "reader gave nothing for " << text;
    return {};
  }
  return SVGSwiftUIFigurer::makeModel(*svg, "", collected.report());
}

TEST(Documents, FilterWarningsGoToTheSink) {
  Collected collected;
  const auto result = convertText(
      R"svg(<svg xmlns="http://www.w3.org/2000/svg"><filter id="f"><feGaussianBlur stdDeviation="1"/>)svg"
      R"svg(<feFlood/><feMerge><feMergeNode in="nope"/></feMerge>)svg"
      R"svg(<feOffset in="BackgroundImage"/></filter>)svg"
      R"svg(<rect width="1" height="1" filter="url(#f)"/><image/></svg>)svg",
      collected);
  EXPECT_TRUE(child<SwiftUIModel::RectangleViewType>(result, 0).drawing.filterModifier);
  const std::vector<std::string> expected{"WARN: Unsupported filter primitive: flood",
                                          "ERROR: Missing filter merge node: nope",
                                          "WARN: Unsupported merge input: BackgroundImage",
                                          "SVG image nodes are not supported, sorry!"};
  EXPECT_EQ(collected.lines, expected);
}

}  // namespace
