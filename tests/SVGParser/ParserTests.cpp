// The reader builds the tree from events recorded during its one XML run. A fragment must read
// exactly as its bytes wrapped in an `svg` element would, whether those parse or not, with the
// same report lines, in every chunk size.
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "SVGParser/SVGParser.h"

namespace {

struct Reading {
  std::optional<SVG> svg;
  std::vector<std::string> lines;
};

Reading read(std::string_view text, SVGParser::ParseOptions options = {}) {
  Reading reading;
  const SVGParser::Report report([&](std::string_view line) { reading.lines.emplace_back(line); });
  reading.svg = SVGParser::parse(text, options, report);
  return reading;
}

template <class T>
const T& only(const std::vector<SVG::GroupItem>& items) {
  EXPECT_EQ(items.size(), 1u);
  return std::get<T>(items.at(0).value);
}

SVGParser::ParseOptions withChunks(std::size_t chunkSize) {
  SVGParser::ParseOptions options;
  options.chunkSize = chunkSize;
  return options;
}

std::string wrapped(std::string_view fragment) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\">" + std::string(fragment) + "</svg>\n";
}

TEST(ParserTest, WrapsFragmentsWithoutARootSvg) {
  const auto path = read("<path d=\"M0 0 L10 0\"/>");
  ASSERT_TRUE(path.svg);
  EXPECT_EQ(only<SVG::Path>(path.svg->children).commands.at(1).kind, SVG::Command::Kind::L);
  EXPECT_TRUE(only<SVG::Group>(read("<g/>").svg.value().children).children.empty());
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

// Character data split across chunks, even inside one UTF-8 sequence or reference, joins.
TEST(ParserTest, ReadsTheSameTreeWhateverTheChunkSize) {
  const std::string text =
      "<?xml version=\"1.0\"?>\n<svg width=\"10cm\"><style>.c{stroke:#fff}</style>"
      "<g class=\"c\"><path d=\"M1 2 c3 4 5 6 7 8z\"/><text>caf\xc3\xa9 &#x263A; &lt;one&gt;"
      "<tspan>two</tspan>&#10;three</text><text>second</text></g>"
      "<linearGradient id=\"g\"><stop stop-color=\"red\"/></linearGradient></svg>";
  const auto whole = read(text);
  ASSERT_TRUE(whole.svg);
  const auto& texts = std::get<SVG::Group>(whole.svg->children.at(0).value).children;
  ASSERT_EQ(texts.size(), 3u);
  EXPECT_EQ(std::get<SVG::Text>(texts[1].value).text, "caf\xc3\xa9 \xe2\x98\xba <one>two\nthree");
  EXPECT_EQ(std::get<SVG::Text>(texts[2].value).text, "second");
  for (std::size_t chunk = 1; chunk <= 6; ++chunk) {
    const auto pieces = read(text, withChunks(chunk));
    EXPECT_EQ(pieces.svg, whole.svg) << chunk;
    EXPECT_EQ(pieces.lines, whole.lines) << chunk;
  }
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
  for (std::size_t chunk : {0, 1, 2, 3, 7}) {
    const auto fragment = read(GetParam().text, withChunks(chunk));
    const auto reference = read(wrapped(GetParam().text), withChunks(chunk));
    EXPECT_EQ(fragment.svg.has_value(), GetParam().reads) << chunk;
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

// The limit counts elements as written, in a document and in a fragment alike: the wrapping
// element of a fragment is not one of them.
TEST(ParserTest, RefusesElementsNestedBeyondTheDepthLimit) {
  const auto nested = [](int depth) {
    std::string open, close;
    for (int i = 0; i < depth; ++i) open += "<g>", close += "</g>";
    return open + "<rect width=\"1\"/>" + close;
  };
  SVGParser::ParseOptions options;
  options.maximumDepth = 50;
  SVGParser::ParseOptions deeper = options;
  deeper.maximumDepth = 51;
  const auto fragment = read(nested(49), options);
  ASSERT_TRUE(fragment.svg);
  EXPECT_EQ(fragment.svg, read(wrapped(nested(49)), deeper).svg);
  EXPECT_TRUE(read("<svg>" + nested(48) + "</svg>", options).svg);
  for (const auto& text : {nested(50), "<svg>" + nested(49) + "</svg>"}) {
    const auto beyond = read(text, options);
    EXPECT_FALSE(beyond.svg);
    EXPECT_EQ(beyond.lines, std::vector<std::string>{
                                "ERROR: elements nested deeper than 50 levels are not supported"});
  }
  options.maximumDepth = std::numeric_limits<std::size_t>::max();
  for (std::string_view text : {"<svg><g/></svg>", "<?xml version=\"1.0\"?><g/>", "<g/>"}) {
    const auto reading = read(text, options);
    EXPECT_EQ(reading.svg.has_value(), text != "<?xml version=\"1.0\"?><g/>") << text;
    EXPECT_TRUE(reading.lines.empty()) << text;
  }
}

}  // namespace
