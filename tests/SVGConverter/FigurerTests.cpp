// What the generated text cannot show: the id record the editor selects by, and the depth
// limit. Everything else the conversion decides is pinned by the golden model_* cases.
#include <gtest/gtest.h>

#include <string>

#include "ConverterTestSupport.h"

using namespace ConverterTest;
using SwiftUIModel::ContainerViewType;

namespace {

TEST(Containers, IdsAreRecordedWithTheirViewNames) {
  SVGSwiftUIFigurer figurer;
  figurer.pushAttributes(SVGSwiftUIFigurer::defaultAttributes());
  SVG::Text text;
  const SVG svg = svgOf({item(withID(circle(0, 0, 1), "c")), item(withID(circle(0, 0, 1), "c")),
                         item(withID(text, "t"))});
  figurer.convert(svg, "");
  ASSERT_EQ(figurer.svgID2Node.size(), 2u);
  EXPECT_EQ(figurer.svgID2Node.at("c").typeName, "Circle1");
  EXPECT_EQ(figurer.svgID2Node.at("c").node, &svg.children[1]);
  EXPECT_EQ(figurer.svgID2Node.at("t").typeName, "");
}

// Deep documents are cut at a fixed depth with one report, so nothing that walks the model
// afterwards can run out of stack.
TEST(Containers, NestingBeyondTheLimitIsDroppedWithAReport) {
  SVG::Group deepest = groupOf({item(circle(0, 0, 1))});
  for (int i = 0; i < 400; ++i) deepest = groupOf({item(std::move(deepest))});
  Collected collected;
  const auto result = model(svgOf({item(std::move(deepest))}), &collected);
  std::size_t depth = 1;
  const ContainerViewType* level = &result;
  while (!level->childTypes.empty()) {
    level = &child<ContainerViewType>(*level, 0);
    ++depth;
  }
  EXPECT_EQ(depth, SVGSwiftUIFigurer::maximumNesting);
  ASSERT_EQ(collected.lines.size(), 1u);
  EXPECT_NE(collected.lines[0].find("dropping: g"), std::string::npos) << collected.lines[0];
}

}  // namespace
