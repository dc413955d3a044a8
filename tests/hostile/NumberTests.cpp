// Extreme numbers in every numeric attribute the reader knows: each value of one table goes
// into each attribute of the other, and the whole document must still convert to a complete
// file, the same one every time.
#include <string>
#include <vector>

#include "HostileSupport.h"

namespace {

using Hostile::convert;

struct NumericAttribute {
  const char* name;
  const char* body;  // "{}" stands for the number, wherever it occurs
  const char* rootAttributes = "";
};

// The shapes are painted so that paints, opacities and stroke widths all reach the output.
const NumericAttribute numericAttributes[] = {
    {"svgX", "<circle r=\"1\"/>", "x=\"{}\" width=\"10\" height=\"10\""},
    {"svgY", "<circle r=\"1\"/>", "y=\"{}\" width=\"10\" height=\"10\""},
    {"svgWidth", "<circle r=\"1\"/>", "width=\"{}\" height=\"10\""},
    {"svgHeight", "<circle r=\"1\"/>", "width=\"10\" height=\"{}\""},
    {"svgWidthAndHeight", "<circle r=\"1\"/>", "width=\"{}\" height=\"{}\""},
    {"viewBoxOrigin", "<circle r=\"1\"/>", "viewBox=\"{} {} 10 10\""},
    {"viewBoxSize", "<circle r=\"1\"/>", "viewBox=\"0 0 {} {}\" width=\"10\" height=\"10\""},
    {"viewBoxTwoNumbers", "<circle r=\"1\"/>", "viewBox=\"{} {}\""},
    {"nestedSVGSize",
     "<svg x=\"{}\" width=\"{}\" height=\"{}\" viewBox=\"0 0 {} 1\"><rect "
     "width=\"1\" height=\"1\"/></svg>"},
    {"rectX", "<rect x=\"{}\" width=\"1\" height=\"1\"/>"},
    {"rectY", "<rect y=\"{}\" width=\"1\" height=\"1\"/>"},
    {"rectWidth", "<rect width=\"{}\" height=\"1\"/>"},
    {"rectHeight", "<rect width=\"1\" height=\"{}\"/>"},
    {"rectRx", "<rect width=\"1\" height=\"1\" rx=\"{}\"/>"},
    {"rectRy", "<rect width=\"1\" height=\"1\" ry=\"{}\"/>"},
    {"rectUnits", "<rect x=\"{}pt\" y=\"{}in\" width=\"{}cm\" height=\"{}mm\" rx=\"{}px\"/>"},
    {"rectPercent", "<rect width=\"{}%\" height=\"{}%\"/>", "width=\"10\" height=\"10\""},
    {"rectStyled", "<rect style=\"x:{};width:{}px;height:{}\"/>"},
    {"circleCx", "<circle cx=\"{}\" r=\"1\"/>"},
    {"circleCy", "<circle cy=\"{}\" r=\"1\"/>"},
    {"circleR", "<circle r=\"{}\"/>"},
    {"ellipseCx", "<ellipse cx=\"{}\" rx=\"1\" ry=\"1\"/>"},
    {"ellipseCy", "<ellipse cy=\"{}\" rx=\"1\" ry=\"1\"/>"},
    {"ellipseRx", "<ellipse rx=\"{}\" ry=\"1\"/>"},
    {"ellipseRy", "<ellipse rx=\"1\" ry=\"{}\"/>"},
    {"lineX1", "<line x1=\"{}\" y1=\"0\" x2=\"1\" y2=\"1\" stroke=\"red\"/>"},
    {"lineY1", "<line x1=\"0\" y1=\"{}\" x2=\"1\" y2=\"1\" stroke=\"red\"/>"},
    {"lineX2", "<line x1=\"0\" y1=\"0\" x2=\"{}\" y2=\"1\" stroke=\"red\"/>"},
    {"lineY2", "<line x1=\"0\" y1=\"0\" x2=\"1\" y2=\"{}\" stroke=\"red\"/>"},
    {"polygonPoints", "<polygon points=\"0,0 {},{} {} 1 5,5\"/>"},
    {"polylinePoints", "<polyline points=\"{} {} 1,1\" fill=\"none\" stroke=\"red\"/>"},
    {"pathMove", "<path d=\"M{} {}L1 1\"/>"},
    {"pathLines", "<path d=\"M0 0L{} 1H{}V{}l{},{}h{}v{}Z\"/>"},
    {"pathCurves", "<path d=\"M0 0C{} 1 2 {} 3 3S{} 1 {} 2Q{} 1 2 {}T{} {}c1 1 {} 1 1 1\"/>"},
    {"pathArcRadius", "<path d=\"M0 0A{} 5 0 0 1 10 10a5 {} 0 1 0 1 1\"/>"},
    {"pathArcAngle", "<path d=\"M0 0A5 5 {} 0 1 10 10\"/>"},
    {"pathArcEnd", "<path d=\"M1 1A5 5 0 0 1 {} {}a5 5 30 0 0 {} 1\"/>"},
    {"pathArcOneRadiusZero", "<path d=\"M1 1A0 {} 0 0 1 {} 10\"/>"},
    {"pathLength", "<path d=\"M0 0L1 1L2 0\" pathLength=\"{}\"/>"},
    {"strokeWidth", "<rect width=\"1\" height=\"1\" stroke=\"red\" stroke-width=\"{}\"/>"},
    {"strokeWidthStyled", "<rect width=\"1\" height=\"1\" style=\"stroke:red;stroke-width:{}\"/>"},
    {"strokeMiterLimit",
     "<rect width=\"1\" height=\"1\" stroke=\"red\" stroke-miterlimit=\"{}\"/>"},
    {"opacity", "<rect width=\"1\" height=\"1\" opacity=\"{}\"/>"},
    {"opacityPercent", "<rect width=\"1\" height=\"1\" opacity=\"{}%\"/>"},
    {"fillOpacity", "<rect width=\"1\" height=\"1\" fill=\"red\" fill-opacity=\"{}\"/>"},
    {"strokeOpacity", "<rect width=\"1\" height=\"1\" stroke=\"red\" stroke-opacity=\"{}\"/>"},
    {"opacityStyled", "<g style=\"opacity:{};fill-opacity:{}%\"><circle r=\"1\"/></g>"},
    {"groupOpacity", "<g opacity=\"{}\"><circle r=\"1\"/><circle r=\"2\"/></g>"},
    {"transformTranslate", "<rect width=\"1\" height=\"1\" transform=\"translate({} {})\"/>"},
    {"transformScale", "<g transform=\"scale({})\"><rect width=\"1\" height=\"1\"/></g>"},
    {"transformScaleTwo", "<rect width=\"1\" height=\"1\" transform=\"scale(2,{})\"/>"},
    {"transformRotate", "<rect width=\"1\" height=\"1\" transform=\"rotate({} {} 1)\"/>"},
    {"transformSkew", "<rect width=\"1\" height=\"1\" transform=\"skewX({}) skewY({})\"/>"},
    {"transformMatrix", "<path d=\"M0 0L1 1\" transform=\"matrix({} 0 0 {} {} 0)\"/>"},
    {"transformOnSVG",
     "<svg transform=\"rotate({})\" width=\"1\" height=\"1\"><circle "
     "r=\"1\"/></svg>"},
    {"linearGradient",
     "<linearGradient id=\"g\" x1=\"{}\" y1=\"{}%\" x2=\"{}\" y2=\"1\"><stop offset=\"{}\" "
     "stop-color=\"red\"/><stop offset=\"{}%\" stop-opacity=\"{}\"/></linearGradient>"
     "<rect width=\"1\" height=\"1\" fill=\"url(#g)\"/>"},
    {"linearGradientTransform",
     "<linearGradient id=\"g\" gradientTransform=\"rotate({}) scale({})\"><stop offset=\"0\"/>"
     "</linearGradient><rect width=\"1\" height=\"1\" fill=\"url(#g)\" stroke=\"url(#g)\"/>"},
    {"radialGradient",
     "<radialGradient id=\"g\" cx=\"{}\" cy=\"{}%\" r=\"{}\" fx=\"{}\" fy=\"{}\" fr=\"{}\">"
     "<stop offset=\"{}\" stop-color=\"blue\" stop-opacity=\"{}%\"/></radialGradient>"
     "<circle r=\"5\" fill=\"url(#g)\"/>"},
    {"stopStyled",
     "<linearGradient id=\"g\"><stop style=\"stop-opacity:{};stop-color:red\" offset=\"{}\"/>"
     "</linearGradient><circle r=\"5\" fill=\"url(#g)\"/>"},
    {"filterRegion",
     "<filter id=\"f\" x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\"><feGaussianBlur "
     "stdDeviation=\"1\"/></filter><rect width=\"1\" height=\"1\" filter=\"url(#f)\"/>"},
    {"filterBlur",
     "<filter id=\"f\"><feGaussianBlur stdDeviation=\"{}\" x=\"{}\" width=\"{}\"/></filter>"
     "<circle r=\"1\" filter=\"url(#f)\"/>"},
    {"filterBlurPair",
     "<filter id=\"f\"><feGaussianBlur stdDeviation=\"{} {}\"/></filter>"
     "<circle r=\"1\" filter=\"url(#f)\"/>"},
    {"filterOffset",
     "<filter id=\"f\"><feOffset dx=\"{}\" dy=\"{}\"/><feGaussianBlur stdDeviation=\"1\"/>"
     "</filter><g filter=\"url(#f)\"><circle r=\"1\"/></g>"},
    {"filterDropShadow",
     "<filter id=\"f\"><feDropShadow dx=\"{}\" dy=\"{}\" stdDeviation=\"{}\" "
     "flood-opacity=\"{}\"/></filter><circle r=\"1\" filter=\"url(#f)\"/>"},
    {"filterMerge",
     "<filter id=\"f\"><feGaussianBlur stdDeviation=\"{}\" result=\"b\"/><feOffset dx=\"{}\"/>"
     "<feMerge><feMergeNode in=\"b\"/><feMergeNode/></feMerge></filter>"
     "<circle r=\"1\" filter=\"url(#f)\"/>"},
    {"textPosition", "<text x=\"{}\" y=\"{}\" dx=\"{}\" dy=\"{}\">a</text><text>b</text>"},
    {"textLength", "<text textLength=\"{}\">a</text>"},
    {"fontSize", "<text font-size=\"{}\">a</text><text font-size=\"{}px\">b</text>"},
    {"fontShorthand", "<text style=\"font: italic bold {}px serif\">a</text>"},
    {"fontSizeFromStylesheet",
     "<style>.t{font-size:{};opacity:{}}</style><text class=\"t\">a"
     "</text>"},
    {"colorChannels",
     "<rect width=\"1\" height=\"1\" fill=\"rgb({},{},{})\" "
     "stroke=\"rgba(1,2,3,{})\"/>"},
    {"imageFrame", "<image x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\"/><circle r=\"1\"/>"},
};

const char* const hostileNumbers[] = {
    "1e308",      "-1e308",
    "1e-320",     "NaN",
    "Infinity",   "-Infinity",
    "nan",        "-inf",
    "1e309",      "-0",
    "0x1p3",      "1e-400",
    "2147483648", "-9223372036854775809",
    "4294967296", "1.7976931348623157e308",
};

std::string substitute(std::string_view pattern, std::string_view number) {
  std::string out;
  std::size_t start = 0;
  for (auto at = pattern.find("{}"); at != std::string_view::npos; at = pattern.find("{}", start)) {
    out.append(pattern.substr(start, at - start)).append(number);
    start = at + 2;
  }
  out.append(pattern.substr(start));
  return out;
}

class ExtremeNumber : public testing::TestWithParam<NumericAttribute> {};

// One test per attribute, looping over the numbers: a thousand separate processes would spend
// more time starting than converting.
TEST_P(ExtremeNumber, ConvertsToACompleteFileDeterministically) {
  const auto& attribute = GetParam();
  for (const char* number : hostileNumbers) {
    SCOPED_TRACE(number);
    const auto text = Hostile::document(substitute(attribute.body, number),
                                        substitute(attribute.rootAttributes, number));
    const auto first = convert(text);
    ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(first));
    const auto second = convert(text);
    EXPECT_EQ(first.swift, second.swift);
    EXPECT_EQ(first.lines, second.lines);
  }
}

INSTANTIATE_TEST_SUITE_P(Hostile, ExtremeNumber, testing::ValuesIn(numericAttributes),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
