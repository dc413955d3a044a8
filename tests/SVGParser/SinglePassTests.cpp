// The reader builds the tree from events recorded during its one XML run. A fragment must read
// exactly as its bytes wrapped in an `svg` element would, whether those parse or not, with the
// same report lines, in every chunk size.
#include <gtest/gtest.h>

#include <string>

#include "ReaderTestSupport.h"

namespace {

using testsupport::only;
using testsupport::read;

std::string wrapped(std::string_view fragment) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\">" + std::string(fragment) + "</svg>\n";
}

struct FragmentRow {
  const char* name;
  std::string text;
  bool reads;  // whether the wrapped bytes give a document
};

void PrintTo(const FragmentRow& row, std::ostream* out) {
  *out << row.name;
}

class FragmentWrapping : public testing::TestWithParam<FragmentRow> {};

TEST_P(FragmentWrapping, ReadsLikeTheWrappedBytesInEveryChunkSize) {
  const FragmentRow& row = GetParam();
  for (std::size_t chunk : {0, 1, 2, 3, 7}) {
    SVGParser::ParseOptions options;
    options.chunkSize = chunk;
    const auto fragment = read(row.text, options);
    const auto reference = read(wrapped(row.text), options);
    EXPECT_EQ(fragment.svg.has_value(), row.reads) << chunk;
    EXPECT_EQ(fragment.svg, reference.svg) << chunk;
    EXPECT_EQ(fragment.lines, reference.lines) << chunk;
  }
}

const std::string kBOM = "\xEF\xBB\xBF";

INSTANTIATE_TEST_SUITE_P(
    Fragments, FragmentWrapping,
    testing::Values(
        FragmentRow{"Path", "<path d=\"M0 0 L10 0\"/>", true},
        FragmentRow{
            "SpaceCommentsAndInstructionsAround",
            " \r\n<!-- a --><?app x?>\n<g fill=\"red\"><rect width=\"1\"/></g>\n<!-- b -->\t",
            true},
        FragmentRow{"StylesheetInside",
                    "<g><style>.c{fill:blue}</style><circle class=\"c\" r=\"2\"/></g>", true},
        FragmentRow{"TextWithCdataEntitiesAndChildren",
                    "<text x=\"1\">a<![CDATA[<b>]]>c &amp; &#x263A;<tspan>d</tspan>\r\ne</text>",
                    true},
        FragmentRow{"ReportsUnknownElementsAndBadPaths",
                    "<g><blink a=\"&lt;\"/><path d=\"M1 2 x\"/><path d=\"L1 2\"/></g>", true},
        FragmentRow{"NestedSvgAndDefinitions",
                    "<g><svg width=\"3\"><linearGradient id=\"a\"><stop offset=\"1\"/>"
                    "</linearGradient></svg><radialGradient id=\"a\"/></g>",
                    true},
        FragmentRow{"XmlDeclaration", "<?xml version=\"1.0\"?><path d=\"M1 2\"/>", false},
        FragmentRow{"XmlDeclarationWithEncoding",
                    "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><text>\xE9</text>", false},
        FragmentRow{"DoctypeWithEntities",
                    "<!DOCTYPE g [<!ENTITY w \"7\">]><g><rect width=\"&w;\"/></g>", false},
        FragmentRow{"CommentThenDoctype", "<!-- c --><!DOCTYPE g><g/>", false},
        FragmentRow{"ByteOrderMark", kBOM + "<g><text>t</text></g>", true},
        FragmentRow{"ByteOrderMarkAndDeclaration",
                    kBOM + "<?xml version=\"1.0\" encoding=\"UTF-8\"?><g/>", false},
        FragmentRow{"Utf16WithByteOrderMark", std::string("\xFF\xFE<\0g\0/\0>\0", 10), false}),
    [](const testing::TestParamInfo<FragmentRow>& info) { return std::string(info.param.name); });

TEST(SinglePassTest, DocumentsWithAnInternalSubsetExpandTheirEntities) {
  const auto reading = read(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!DOCTYPE svg [<!ENTITY w \"5\"><!ENTITY t \"x&amp;y\">]>\n"
      "<svg width=\"&w;\"><text>&t;<![CDATA[&t;]]>&w;</text></svg>");
  ASSERT_TRUE(reading.svg);
  EXPECT_EQ(reading.svg->width, CSS::UnitLength::number(5));
  EXPECT_EQ(only<SVG::Text>(reading.svg->children).text, "x&y5");
}

TEST(SinglePassTest, TheDepthLimitCountsTheFragmentAsWritten) {
  auto nested = [](int depth) {
    std::string text;
    for (int i = 0; i < depth; ++i) text += "<g>";
    text += "<rect width=\"1\"/>";
    for (int i = 0; i < depth; ++i) text += "</g>";
    return text;
  };
  SVGParser::ParseOptions options;
  options.maximumDepth = 50;
  const auto atLimit = read(nested(49), options);
  ASSERT_TRUE(atLimit.svg);
  SVGParser::ParseOptions deeper = options;
  deeper.maximumDepth = 51;
  EXPECT_EQ(atLimit.svg, read(wrapped(nested(49)), deeper).svg);

  const auto beyond = read(nested(50), options);
  EXPECT_FALSE(beyond.svg);
  ASSERT_EQ(beyond.lines.size(), 1u);
  EXPECT_EQ(beyond.lines[0], "ERROR: elements nested deeper than 50 levels are not supported");
}

TEST(SinglePassTest, TheLargestDepthLimitReadsEveryDocument) {
  SVGParser::ParseOptions options;
  options.maximumDepth = std::numeric_limits<std::size_t>::max();
  for (std::string_view text : {"<svg><g/></svg>", "<?xml version=\"1.0\"?><g/>", "<g/>"}) {
    const auto reading = read(text, options);
    EXPECT_EQ(reading.svg.has_value(), text != "<?xml version=\"1.0\"?><g/>") << text;
    EXPECT_TRUE(reading.lines.empty()) << text;
  }
}

TEST(SinglePassTest, CharacterDataSplitAcrossChunksJoinsInText) {
  const std::string text =
      "<svg><text>caf\xC3\xA9 &lt;one&gt;<tspan>two</tspan>&#10;three</text>"
      "<text>second</text></svg>";
  const auto whole = read(text);
  ASSERT_TRUE(whole.svg);
  ASSERT_EQ(whole.svg->children.size(), 2u);
  EXPECT_EQ(std::get<SVG::Text>(whole.svg->children[0].value).text, "caf\xC3\xA9 <one>two\nthree");
  EXPECT_EQ(std::get<SVG::Text>(whole.svg->children[1].value).text, "second");
  for (std::size_t chunk = 1; chunk <= 6; ++chunk) {
    SVGParser::ParseOptions options;
    options.chunkSize = chunk;
    EXPECT_EQ(read(text, options).svg, whole.svg) << chunk;
  }
}

}  // namespace
