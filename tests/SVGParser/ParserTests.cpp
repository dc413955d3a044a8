#include <gtest/gtest.h>

#include "ReaderTestSupport.h"
#include "SVGParser/Describe.h"

namespace {

using testsupport::only;
using testsupport::read;

constexpr std::string_view kDefaultDocument =
    "<svg xmlns=\"http://www.w3.org/2000/svg\"\n"
    "     viewBox=\"0 0 100 100\">\n"
    "  <rect x=\"10\" y=\"10\"\n"
    "        width=\"80\" height=\"80\"\n"
    "        fill=\"gold\" stroke=\"blue\"\n"
    "        stroke-width=\"4\" />\n"
    "</svg>\n";

TEST(ParserTest, ReadsTheDefaultDocument) {
  const auto reading = read(kDefaultDocument);
  ASSERT_TRUE(reading.svg);
  EXPECT_TRUE(reading.lines.empty());
  EXPECT_EQ(reading.svg->viewBox, (CGRect{{0, 0}, {100, 100}}));
  const auto& rect = only<SVG::Rect>(reading.svg->children);
  EXPECT_EQ(rect.x, CSS::UnitLength::number(10));
  EXPECT_EQ(rect.width, CSS::UnitLength::number(80));
  EXPECT_EQ(rect.presentation.fill, SVG::Paint::makeColor(CSS::Color::named("gold")));
  EXPECT_EQ(rect.presentation.stroke, SVG::Paint::makeColor(CSS::Color::named("blue")));
  EXPECT_EQ(rect.presentation.strokeWidth, CSS::UnitLength::number(4));
  EXPECT_EQ(rect.presentation.strokeLineCap, CGLineCap::butt);
  EXPECT_EQ(rect.presentation.strokeMiterLimit, CSS::UnitLength::point(4));
}

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

TEST(ParserTest, StylesheetsApplyWhereverTheyStand) {
  const auto reading = read(
      "<svg><rect class=\"a\"/><defs><style>.a{fill:red}</style></defs>"
      "<unknown><style>#b{stroke:blue}</style></unknown><circle id=\"b\"/></svg>");
  ASSERT_TRUE(reading.svg);
  ASSERT_EQ(reading.svg->children.size(), 2u);
  const auto& rect = std::get<SVG::Rect>(reading.svg->children[0].value);
  EXPECT_EQ(rect.presentation.fill, SVG::Paint::makeColor(CSS::Color::named("red")));
  const auto& circle = std::get<SVG::Circle>(reading.svg->children[1].value);
  EXPECT_EQ(circle.presentation.stroke, SVG::Paint::makeColor(CSS::Color::named("blue")));
}

TEST(ParserTest, CdataSectionsReachNoHandler) {
  const auto reading = read(
      "<svg><style><![CDATA[.a{fill:red}]]></style><rect class=\"a\"/>"
      "<text>a<![CDATA[hidden]]>b</text></svg>");
  ASSERT_TRUE(reading.svg);
  ASSERT_EQ(reading.svg->children.size(), 2u);
  EXPECT_FALSE(std::get<SVG::Rect>(reading.svg->children[0].value).presentation.fill);
  EXPECT_EQ(std::get<SVG::Text>(reading.svg->children[1].value).text, "ab");
}

TEST(ParserTest, TextKeepsAllCharacterDataIncludingUnknownChildren) {
  const auto reading =
      read("<svg><text x=\"1\">\n  Hello <tspan>big</tspan> &amp; world\n</text></svg>");
  ASSERT_TRUE(reading.svg);
  EXPECT_EQ(only<SVG::Text>(reading.svg->children).text, "\n  Hello big & world\n");
  ASSERT_EQ(reading.lines.size(), 1u);
  EXPECT_EQ(reading.lines[0], "OTHER: tspan [:]");
}

TEST(ParserTest, UnknownElementsAreReportedAndTheirChildrenRead) {
  const auto reading = read("<svg><a href=\"x\"><svg:rect/><circle r=\"2\"/></a></svg>");
  ASSERT_TRUE(reading.svg);
  EXPECT_EQ(only<SVG::Circle>(reading.svg->children).r, CSS::UnitLength::number(2));
  ASSERT_EQ(reading.lines.size(), 2u);
  EXPECT_EQ(reading.lines[0], "OTHER: a [\"href\": \"x\"]");
  EXPECT_EQ(reading.lines[1], "OTHER: svg:rect [:]");
}

TEST(ParserTest, ABadPathIsReportedAndOnlyThatPathDropped) {
  const auto reading = read("<svg><path d=\"M1,2,3,4\"/><path d=\"M0 0\"/></svg>");
  ASSERT_TRUE(reading.svg);
  EXPECT_EQ(only<SVG::Path>(reading.svg->children).commands.size(), 1u);
  ASSERT_EQ(reading.lines.size(), 1u);
  EXPECT_EQ(reading.lines[0],
            "could not parse path: [\"d\": \"M1,2,3,4\"]   error: invalidCommandChar(44)");
}

TEST(ParserTest, ShapesInsideDefsAreDrawnAndGradientsCollectedAnywhere) {
  const auto reading = read(
      "<svg><defs><rect/></defs><g><linearGradient id=\"g\"><stop "
      "offset=\"0\"/></linearGradient></g></svg>");
  ASSERT_TRUE(reading.svg);
  ASSERT_EQ(reading.svg->children.size(), 2u);
  EXPECT_TRUE(std::holds_alternative<SVG::Rect>(reading.svg->children[0].value));
  ASSERT_EQ(reading.svg->definitions.size(), 1u);
  EXPECT_EQ(reading.svg->definitions[0].id, "g");
  const auto& gradient =
      std::get<SVG::LinearGradient>(reading.svg->definitions[0].definition.value);
  ASSERT_EQ(gradient.stops.size(), 1u);
  EXPECT_EQ(gradient.stops[0].offset, CSS::UnitLength::number(0));
}

TEST(ParserTest, TheFirstDefinitionOfAnIdWinsAcrossNestedDocuments) {
  const auto reading = read(
      "<svg>"
      "<linearGradient id=\"a\"><stop offset=\"1\"/></linearGradient>"
      "<svg><radialGradient id=\"a\"/><radialGradient id=\"b\"/><filter id=\"f\"/></svg>"
      "<linearGradient id=\"a\"><stop offset=\"2\"/><stop offset=\"3\"/></linearGradient>"
      "<linearGradient><stop/></linearGradient>"
      "</svg>");
  ASSERT_TRUE(reading.svg);
  ASSERT_EQ(reading.svg->definitions.size(), 1u);
  EXPECT_EQ(
      std::get<SVG::LinearGradient>(reading.svg->definitions[0].definition.value).stops.size(), 1u);
  const auto& nested = only<SVG>(reading.svg->children);
  ASSERT_EQ(nested.definitions.size(), 2u);
  EXPECT_EQ(nested.definitions[0].id, "b");
  EXPECT_EQ(nested.definitions[1].id, "f");
}

TEST(ParserTest, StopsJoinEveryOpenGradientAndAreIgnoredOutsideOne) {
  const auto reading = read(
      "<svg><stop offset=\"9\"/>"
      "<linearGradient id=\"l\"><radialGradient id=\"r\"><stop offset=\"1\"/></radialGradient>"
      "<stop offset=\"2\"/></linearGradient></svg>");
  ASSERT_TRUE(reading.svg);
  EXPECT_TRUE(reading.lines.empty());
  ASSERT_EQ(reading.svg->definitions.size(), 2u);
  EXPECT_EQ(reading.svg->definitions[0].id, "r");
  EXPECT_EQ(
      std::get<SVG::RadialGradient>(reading.svg->definitions[0].definition.value).stops.size(), 1u);
  EXPECT_EQ(
      std::get<SVG::LinearGradient>(reading.svg->definitions[1].definition.value).stops.size(), 2u);
}

TEST(ParserTest, FilterPrimitivesChainTheirDefaultInput) {
  using Input = SVG::Filter::Input;
  const auto reading = read(
      "<svg><feGaussianBlur stdDeviation=\"1\"/><feMergeNode in=\"x\"/>"
      "<filter id=\"f\">"
      "<feGaussianBlur stdDeviation=\"2\"/><feColorMatrix in=\"SourceAlpha\"/>"
      "<feOffset dx=\"3\"/><image href=\"a.png\" width=\"4\"/>"
      "<feMerge result=\"m\"><feMergeNode/><feMergeNode in=\"SourceGraphic\"/></feMerge>"
      "<feBlend in=\"SourceAlpha\"/>"
      "</filter></svg>");
  ASSERT_TRUE(reading.svg);
  EXPECT_TRUE(reading.svg->children.empty());
  ASSERT_EQ(reading.svg->definitions.size(), 1u);
  const auto& filter = std::get<SVG::Filter>(reading.svg->definitions[0].definition.value);
  ASSERT_EQ(filter.primitives.size(), 6u);
  const auto& blur = std::get<SVG::Filter::Primitive::Blur>(filter.primitives[0].value);
  EXPECT_EQ(blur.input.kind, Input::Kind::sourceGraphic);
  EXPECT_EQ(blur.standardDeviation, 2);
  EXPECT_EQ(std::get<SVG::Filter::Primitive::Unmodelled>(filter.primitives[1].value).kind,
            SVG::Filter::Primitive::Unmodelled::Kind::colorMatrix);
  EXPECT_EQ(std::get<SVG::Filter::Primitive::Offset>(filter.primitives[2].value).input.kind,
            Input::Kind::previous);
  EXPECT_EQ(std::get<SVG::Filter::Primitive::Unmodelled>(filter.primitives[3].value).kind,
            SVG::Filter::Primitive::Unmodelled::Kind::image);
  const auto& merge = std::get<SVG::Filter::Primitive::Merge>(filter.primitives[4].value);
  EXPECT_EQ(merge.attributes.result, "m");
  ASSERT_EQ(merge.inputs.size(), 2u);
  EXPECT_EQ(merge.inputs[0].kind, Input::Kind::previous);
  EXPECT_EQ(merge.inputs[1].kind, Input::Kind::sourceGraphic);
  const auto& blend = std::get<SVG::Filter::Primitive::Blend>(filter.primitives[5].value);
  EXPECT_EQ(blend.input.kind, Input::Kind::sourceAlpha);
  EXPECT_EQ(blend.input2.kind, Input::Kind::sourceAlpha);
}

TEST(ParserTest, AFilterInsideAFilterReplacesTheOuterOne) {
  const auto reading = read(
      "<svg><filter id=\"outer\"><feOffset/><filter id=\"inner\"><feOffset/></filter>"
      "<feGaussianBlur/></filter></svg>");
  ASSERT_TRUE(reading.svg);
  ASSERT_EQ(reading.svg->definitions.size(), 1u);
  EXPECT_EQ(reading.svg->definitions[0].id, "inner");
  EXPECT_EQ(std::get<SVG::Filter>(reading.svg->definitions[0].definition.value).primitives.size(),
            1u);
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

TEST(ParserTest, EntitiesAreBoundedAndExternalOnesNeverLoaded) {
  std::string laughs = "<?xml version=\"1.0\"?><!DOCTYPE svg [<!ENTITY l0 \"lol\">";
  for (int i = 1; i < 10; ++i) {
    laughs += "<!ENTITY l" + std::to_string(i) + " \"";
    for (int k = 0; k < 10; ++k) laughs += "&l" + std::to_string(i - 1) + ";";
    laughs += "\">";
  }
  laughs += "]><svg><text>&l9;</text></svg>";
  EXPECT_FALSE(read(laughs).svg);

  const auto external = read(
      "<?xml version=\"1.0\"?><!DOCTYPE svg [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>"
      "<svg><text>[&x;]</text></svg>");
  if (external.svg) {
    EXPECT_EQ(only<SVG::Text>(external.svg->children).text, "[]");
  }
}

TEST(ParserTest, TreeDumpShowsElementsAndDefinitionsByDepth) {
  const auto reading = read(
      "<svg width=\"10\"><g id=\"a\"><circle r=\"1\"/></g>"
      "<linearGradient id=\"l\"><stop offset=\"0.5\"/></linearGradient></svg>");
  ASSERT_TRUE(reading.svg);
  const std::string dump = SVGParser::describeTree(*reading.svg);
  EXPECT_NE(dump.find("svg width=10.0\n"), std::string::npos) << dump;
  EXPECT_NE(dump.find("\n  definition \"l\": linearGradient"), std::string::npos) << dump;
  EXPECT_NE(dump.find("\n    stop offset=0.5"), std::string::npos) << dump;
  EXPECT_NE(dump.find("\n  g id=\"a\"\n    circle cx=0.0 cy=0.0 r=1.0\n"), std::string::npos)
      << dump;
}

}  // namespace
