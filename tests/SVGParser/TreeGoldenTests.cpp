// Whole documents against recorded trees: every trees/<case>.svg is read, and the tree dump
// followed by every report line must equal trees/<case>.txt. Each element of a case is one
// reading rule; the recording pins its result and its report lines together, in document
// order. A document the reader refuses records "refused" before its report lines. Read in order,
// child by child, every case must give the same tree and the same lines.
#include <gtest/gtest.h>

#include <string>

#include "SVGParser/Describe.h"
#include "SVGParser/SVGParser.h"
#include "support/GoldenFiles.h"

namespace {

class TreeGolden : public testing::TestWithParam<std::string> {};

TEST_P(TreeGolden, TreeAndReportMatchRecording) {
  const auto directory = golden::directory("SVGParser/trees");
  std::string actual;
  const SVGParser::Report report(
      [&](std::string_view line) { actual.append("report: ").append(line).append("\n"); });
  const auto text = golden::read(directory / (GetParam() + ".svg"));
  const auto svg = SVGParser::parse(text, report);
  actual.insert(0, svg ? SVGParser::describeTree(*svg) : "refused\n");
  golden::expectRecorded(directory / (GetParam() + ".txt"), actual);

  std::string inOrder;
  const SVGParser::Report inOrderReport(
      [&](std::string_view line) { inOrder.append("report: ").append(line).append("\n"); });
  if (auto document = SVGParser::InOrderReader::open(text, {}, inOrderReport)) {
    SVG tree = document->root();
    tree.children.clear();
    while (const SVG::GroupItem* child = document->next()) tree.children.push_back(*child);
    inOrder.insert(0, SVGParser::describeTree(tree));
  } else {
    inOrder.insert(0, "refused\n");
  }
  EXPECT_EQ(actual, inOrder) << "read in order";
}

INSTANTIATE_TEST_SUITE_P(Cases, TreeGolden,
                         testing::ValuesIn(golden::cases(golden::directory("SVGParser/trees"))),
                         [](const testing::TestParamInfo<std::string>& info) {
                           return info.param;
                         });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(TreeGolden);

}  // namespace
