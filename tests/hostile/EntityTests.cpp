// Entities: expansion bombs must be cut off by the XML parser's amplification limit, and an
// external entity must never be read, however it is referenced.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "HostileSupport.h"
#include "SVGParser/Describe.h"

namespace {

using Hostile::convert;

// Ten levels of ten references each: 10^9 copies of the innermost text once expanded.
std::string laughs(std::string_view use) {
  std::string text = "<?xml version=\"1.0\"?>\n<!DOCTYPE svg [\n<!ENTITY lol0 \"lol\">\n";
  for (int level = 1; level <= 9; ++level) {
    text += "<!ENTITY lol" + std::to_string(level) + " \"";
    for (int i = 0; i < 10; ++i) text += "&lol" + std::to_string(level - 1) + ";";
    text += "\">\n";
  }
  text += "]>\n";
  text += use;
  return text;
}

// One entity of 64 KiB referenced many times: few levels, large copies.
std::string quadraticBlowup() {
  std::string text = "<!DOCTYPE svg [<!ENTITY big \"" + std::string(64 * 1024, 'x') + "\">]>";
  text += "<svg xmlns=\"http://www.w3.org/2000/svg\"><text>";
  for (int i = 0; i < 20'000; ++i) text += "&big;";
  text += "</text></svg>";
  return text;
}

struct BombCase {
  const char* name;
  std::string text;
};

class ExpansionBomb : public testing::TestWithParam<BombCase> {};

TEST_P(ExpansionBomb, IsRefusedBeforeItExpands) {
  const auto outcome = convert(GetParam().text);
  EXPECT_FALSE(outcome.converted());
  EXPECT_TRUE(outcome.swift.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Hostile, ExpansionBomb,
    testing::Values(
        BombCase{"inText", laughs("<svg xmlns=\"http://www.w3.org/2000/svg\"><text>&lol9;</text>"
                                  "</svg>")},
        BombCase{"inAttribute",
                 laughs("<svg xmlns=\"http://www.w3.org/2000/svg\"><path d=\"&lol9;\"/></svg>")},
        BombCase{"inStylesheet",
                 laughs("<svg xmlns=\"http://www.w3.org/2000/svg\"><style>&lol9;</style></svg>")},
        BombCase{"inFragment", laughs("<g><text>&lol9;</text></g>")},
        BombCase{"quadratic", quadraticBlowup()}),
    [](const auto& info) { return std::string(info.param.name); });

// A small amount of expansion is ordinary XML and must keep working.
TEST(Entities, ModestInternalEntityExpands) {
  const auto outcome = convert(
      "<!DOCTYPE svg [<!ENTITY word \"Hello\">]>"
      "<svg xmlns=\"http://www.w3.org/2000/svg\"><text>&word; &word;</text></svg>");
  ASSERT_TRUE(outcome.converted());
  EXPECT_NE(outcome.swift.find("Hello Hello"), std::string::npos) << outcome.swift;
}

// Each document names a file that exists. Whatever the reader makes of the document, the
// file's content must appear nowhere: not in the tree, the source or the report.
TEST(Entities, ExternalEntityIsNeverRead) {
  namespace fs = std::filesystem;
  const auto directory =
      fs::temp_directory_path() / ("svgfigurer-hostile-" + std::to_string(::getpid()));
  fs::create_directories(directory);
  const std::string secret = "CONTENT-FROM-DISK-7f3a";
  const auto secretPath = directory / "secret.txt", dtdPath = directory / "outside.dtd";
  std::ofstream(secretPath) << secret;
  std::ofstream(dtdPath) << "<!ENTITY leak \"" << secret << "\">";
  ASSERT_TRUE(fs::exists(secretPath));
  const auto url = [](const fs::path& path) { return "file://" + path.string(); };
  const std::string svgOpen = "<svg xmlns=\"http://www.w3.org/2000/svg\">";
  struct Row {
    const char* name;
    std::string text;
    bool converts;
  };
  const Row rows[] = {
      {"general entity in text",
       "<!DOCTYPE svg [<!ENTITY xxe SYSTEM \"" + url(secretPath) + "\">]>" + svgOpen +
           "<text>&xxe;</text></svg>",
       true},
      {"general entity by relative path",
       "<!DOCTYPE svg [<!ENTITY xxe SYSTEM \"" + secretPath.string() + "\">]>" + svgOpen +
           "<text>&xxe;</text><style>&xxe;</style></svg>",
       true},
      // An external entity may not appear in an attribute at all: that is an XML error.
      {"general entity in attribute",
       "<!DOCTYPE svg [<!ENTITY xxe SYSTEM \"" + url(secretPath) + "\">]>" + svgOpen +
           "<text id=\"&xxe;\">x</text></svg>",
       false},
      {"parameter entity",
       "<!DOCTYPE svg [<!ENTITY % ext SYSTEM \"" + url(dtdPath) + "\"> %ext;]>" + svgOpen +
           "<text>&leak;</text></svg>",
       true},
      {"external subset",
       "<!DOCTYPE svg SYSTEM \"" + url(dtdPath) + "\">" + svgOpen + "<text>&leak;</text></svg>",
       true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const auto outcome = convert(row.text);
    EXPECT_EQ(outcome.converted(), row.converts) << outcome.allLines();
    EXPECT_EQ(outcome.swift.find(secret), std::string::npos);
    EXPECT_EQ(outcome.allLines().find(secret), std::string::npos);
    if (outcome.svg) {
      EXPECT_EQ(SVGParser::describeTree(*outcome.svg).find(secret), std::string::npos);
    }
  }
  fs::remove_all(directory);
}

}  // namespace
