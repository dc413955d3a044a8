#include <gtest/gtest.h>

#include "ReaderTestSupport.h"

namespace {

using testsupport::only;
using testsupport::read;

TEST(ParserTest, WrapsFragmentsWithoutARootSvg) {
  const auto path = read("<path d=\"M0 0 L10 0\"/>");
  ASSERT_TRUE(path.svg);
  const auto& p = only<SVG::Path>(path.svg->children);
  ASSERT_EQ(p.commands.size(), 2u);
  EXPECT_EQ(p.commands[1].kind, SVG::Command::Kind::L);

  const auto group = read("<g/>");
  ASSERT_TRUE(group.svg);
  EXPECT_TRUE(only<SVG::Group>(group.svg->children).children.empty());

  // An svg that is not the root element does not count as one.
  const auto nested = read("<g><svg width=\"5\"/></g>");
  ASSERT_TRUE(nested.svg);
  EXPECT_FALSE(nested.svg->width);
  EXPECT_EQ(only<SVG>(only<SVG::Group>(nested.svg->children).children).width,
            CSS::UnitLength::number(5));
}

TEST(ParserTest, GivesNothingForTextThatIsNoSingleDocument) {
  for (std::string_view text : {"", "   ", "<path/><path/>", "<svg>", "not xml", "<svg></g>",
                                "<svg><rect x=\"1\" x=\"2\"/></svg>", "<svg>&undefined;</svg>"}) {
    EXPECT_FALSE(read(text).svg) << text;
  }
}

TEST(ParserTest, WithoutWrappingAFragmentGivesNothingAndDropsItsItems) {
  SVGParser::ParseOptions options;
  options.wrapFragments = false;
  const auto reading = read("<path d=\"M1 2\"/>", options);
  EXPECT_FALSE(reading.svg);
  ASSERT_EQ(reading.lines.size(), 1u);
  EXPECT_TRUE(reading.lines[0].starts_with("dropping element, no group: path")) << reading.lines[0];
  EXPECT_FALSE(read("<g/>", options).svg);
}

TEST(ParserTest, ReadsTheSameTreeWhateverTheChunkSize) {
  const std::string text =
      "<?xml version=\"1.0\"?>\n<svg width=\"10cm\"><style>.c{stroke:#fff}</style>"
      "<g class=\"c\"><path d=\"M1 2 c3 4 5 6 7 8z\"/><text>caf\xc3\xa9 &#x263A; &lt;</text></g>"
      "<linearGradient id=\"g\"><stop stop-color=\"red\"/></linearGradient></svg>";
  const auto whole = read(text);
  ASSERT_TRUE(whole.svg);
  for (std::size_t chunk = 1; chunk <= 5; ++chunk) {
    SVGParser::ParseOptions options;
    options.chunkSize = chunk;
    const auto pieces = read(text, options);
    ASSERT_TRUE(pieces.svg) << chunk;
    EXPECT_EQ(*pieces.svg, *whole.svg) << chunk;
    EXPECT_EQ(pieces.lines, whole.lines) << chunk;
  }
}

TEST(ParserTest, RefusesDocumentsNestedTooDeeply) {
  auto nested = [](int depth) {
    std::string text = "<svg>";
    for (int i = 0; i < depth; ++i) text += "<g>";
    for (int i = 0; i < depth; ++i) text += "</g>";
    return text + "</svg>";
  };
  SVGParser::ParseOptions options;
  options.maximumDepth = 50;
  EXPECT_TRUE(read(nested(49), options).svg);
  const auto deep = read(nested(50), options);
  EXPECT_FALSE(deep.svg);
  ASSERT_EQ(deep.lines.size(), 1u);
  EXPECT_EQ(deep.lines[0], "ERROR: elements nested deeper than 50 levels are not supported");
  EXPECT_FALSE(read(nested(100000)).svg);
}

}  // namespace
