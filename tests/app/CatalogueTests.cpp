// The sample catalogue: its names, that every sample goes through the whole pipeline, and the
// menu action with and without a focused document.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AppTestSupport.h"

using namespace SVGFigurerApp;

namespace {

TEST(Catalogue, SixSamplesInMenuOrder) {
  std::vector<std::string_view> names;
  for (const auto& example : exampleSVGs()) names.push_back(example.name);
  EXPECT_EQ(names, (std::vector<std::string_view>{
                       "IconMonstr Icon", "Linear Gradient", "Simple Ellipse", "Blurred Circles",
                       "Merge Filter Drop Shadow", "Gradient Filled Text"}));
  EXPECT_EQ(exampleNamed("Simple Ellipse")->svg,
            "<svg viewBox=\"0 0 200 100\" xmlns=\"http://www.w3.org/2000/svg\">\n"
            "  <ellipse cx=\"100\" cy=\"50\" rx=\"100\" ry=\"50\" />\n</svg>\n");
  EXPECT_FALSE(exampleNamed("simple ellipse"));
}

TEST(Catalogue, EverySampleParsesWithoutReportsAndGenerates) {
  for (const auto& example : exampleSVGs()) {
    std::vector<std::string> report;
    const SVGParser::Report sink([&](std::string_view line) { report.emplace_back(line); });
    AppTest::RecordingLogger log;
    const auto result = generateSwift(example.svg, SVGFigurerConfiguration::fresh(), log, sink);
    EXPECT_FALSE(result.failed) << example.name;
    EXPECT_TRUE(result.text.starts_with("/**")) << result.text;
    EXPECT_NE(result.text.find("import SwiftUI"), std::string::npos) << example.name;
    EXPECT_TRUE(report.empty()) << example.name << ": " << report.front();
  }
}

TEST(Catalogue, DefaultDocumentFileHoldsTheDefaultText) {
  const char* root = std::getenv("SVGFIGURER_SOURCE_DIR");
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(AppTest::readFile(std::filesystem::path(root) / "samples" / "default.svg"),
            defaultDocumentSVG);
}

TEST(Catalogue, PickingWithoutAWindowOpensANewDocumentWithTheSampleOrLeavesItForTheNext) {
  AppTest::Fixture fixture;
  const auto sample = *exampleNamed("Blurred Circles");
  int opens = 0;
  pickSample(sample.svg, nullptr, fixture.environment(), [&] {
    ++opens;
    SVGFigurerDocument document(fixture.environment());
    EXPECT_EQ(document.svgString(), sample.svg);
    EXPECT_FALSE(document.isEdited());
    EXPECT_FALSE(document.swift().starts_with("/**"));
  });
  EXPECT_EQ(opens, 1);
  EXPECT_TRUE(fixture.pending.empty());

  // An open that fails leaves the sample queued.
  pickSample(sample.svg, nullptr, fixture.environment(), {});
  ASSERT_EQ(fixture.pending.size(), 1u);
  SVGFigurerDocument next(fixture.environment());
  EXPECT_EQ(next.svgString(), sample.svg);
}

TEST(Catalogue, PickingWithAFocusedDocumentReplacesItsSVG) {
  AppTest::Fixture fixture;
  SVGFigurerDocument document(fixture.environment());
  document.setSwift("// edited\n");
  const auto sample = *exampleNamed("Simple Ellipse");
  pickSample(sample.svg, &document, fixture.environment(), [] { FAIL() << "no new document"; });
  EXPECT_EQ(document.svgString(), sample.svg);
  EXPECT_EQ(document.swift(), "// edited\n");
  EXPECT_TRUE(fixture.pending.empty());
}

}  // namespace
