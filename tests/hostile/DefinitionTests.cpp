// Many definitions: duplicate ids, many references, and definitions spread over nested `svg`
// elements. The first definition of an id wins, document-wide.
#include <cstdio>
#include <string>

#include "HostileSupport.h"

namespace {

using Hostile::convert;
using Hostile::occurrences;

constexpr int definitionCount = 10'000;

// A gradient whose single stop colour tells which of the copies it is.
std::string gradient(const std::string& element, const std::string& id, int index) {
  char color[8];
  std::snprintf(color, sizeof color, "#%06x", index);
  return "<" + element + " id=\"" + id + "\"><stop offset=\"0\" stop-color=\"" + color + "\"/></" +
         element + ">";
}

struct SameIDCase {
  const char* element;
  const char* reference;  // how the shapes refer to it
  const char* firstCopy;  // a fragment only the first copy produces
};

class SameID : public testing::TestWithParam<SameIDCase> {};

TEST_P(SameID, FirstDefinitionWins) {
  const auto& row = GetParam();
  std::string defs, shapes;
  // Only the first copy has any blue in it, or a blur of one.
  for (int i = 1; i <= definitionCount; ++i) {
    defs += std::string(row.element) == "filter"
                ? "<filter id=\"same\"><feGaussianBlur stdDeviation=\"" + std::to_string(i) +
                      "\"/></filter>"
                : gradient(row.element, "same", i == 1 ? 0x0000ff : i << 8);
  }
  for (int i = 0; i < 100; ++i)
    shapes += "<rect width=\"1\" height=\"1\" " + std::string(row.reference) + "/>";
  const auto outcome = convert(Hostile::document("<defs>" + defs + "</defs>" + shapes));
  ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
  ASSERT_EQ(outcome.svg->definitions.size(), 1u);
  const auto model = outcome.model();
  EXPECT_EQ(model.definitions.size(), 1u);
  EXPECT_EQ(model.childTypes.size(), 100u);
  EXPECT_NE(outcome.swift.find(row.firstCopy), std::string::npos) << outcome.swift.substr(0, 4000);
}

const SameIDCase sameIDCases[] = {
    {"linearGradient", "fill=\"url(#same)\"", ".init(red: 0, green: 0, blue: 1)"},
    {"radialGradient", "stroke=\"url(#same)\"", ".init(red: 0, green: 0, blue: 1)"},
    {"filter", "filter=\"url(#same)\"", "blur(radius: 1)"},
};

INSTANTIATE_TEST_SUITE_P(Hostile, SameID, testing::ValuesIn(sameIDCases),
                         [](const auto& info) { return std::string(info.param.element); });

// Ten thousand distinct gradients, each used by its own shape: every reference must find its
// own definition.
TEST(Definitions, EachOfManyReferencesFindsItsOwnGradient) {
  std::string body;
  for (int i = 0; i < definitionCount; ++i) {
    body += gradient("linearGradient", "g" + std::to_string(i), i);
    body += "<rect width=\"1\" height=\"1\" fill=\"url(#g" + std::to_string(i) + ")\"/>";
  }
  const auto outcome = convert(Hostile::document(body));
  ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
  EXPECT_EQ(outcome.model().definitions.size(), std::size_t{definitionCount});
  // No shape fell back to the default fill.
  EXPECT_EQ(occurrences(outcome.swift, "Color.black"), 0u);
}

// Each nested `svg` defines the same id again; only the outermost definition exists, and the
// reference from deep inside reaches it through every scope.
TEST(Definitions, SameIDInNestedSVGs) {
  std::string open, close;
  for (int i = 1; i <= 200; ++i) {
    open += "<svg width=\"10\" height=\"10\">" +
            gradient("linearGradient", "same", i == 1 ? 0x0000ff : i << 8);
    close += "</svg>";
  }
  const auto outcome = convert(
      Hostile::document(open + "<rect width=\"1\" height=\"1\" fill=\"url(#same)\"/>" + close));
  ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
  EXPECT_NE(outcome.swift.find(".init(red: 0, green: 0, blue: 1)"), std::string::npos);
  EXPECT_EQ(occurrences(outcome.swift, "LinearGradient("), 1u);
}

}  // namespace
