// Opening files of the three kinds, the failures of reading, and the bytes a document saves.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "AppTestSupport.h"
#include "FigurerUtilities/Transcript.h"

using namespace SVGFigurerApp;
using AppTest::circleSVG;
using AppTest::Fixture;

namespace {

TEST(DocumentFile, ContentTypesFollowTheExtension) {
  const std::pair<std::string, ContentType> rows[] = {
      {"a.svg", ContentType::svg},           {"dir/A.SVG", ContentType::svg},
      {"b.swift", ContentType::swiftSource}, {"c.svgfigurer", ContentType::document},
      {"d.svgz", ContentType::other},        {"svg", ContentType::other},
      {"e.txt", ContentType::other}};
  for (const auto& [path, type] : rows) EXPECT_EQ(contentTypeForPath(path), type) << path;
}

// Each input is a file name and its contents ("(none)" when they cannot be read; a leading
// "(no prefix) " opens it while new documents leave the SVG out of the source). The answer is the
// opened document, each text as it relates to the others, or the failure, then the lines logged.
TEST(DocumentFile, OpeningFilesOfEachKind) {
  Transcript::expect("app/data/opening-files.txt", [](std::string input) {
    Fixture fixture;
    if (input.starts_with("(no prefix) ")) {
      auto config = SVGFigurerConfiguration::fresh();
      config.prefixSVG = false;
      fixture.defaults.setDefaultConfiguration(config);
      input.erase(0, 12);
      fixture.log.lines.clear();
    }
    const auto blank = input.find(' ');
    const std::string name = input.substr(0, blank), rest = input.substr(blank + 1);
    const std::optional<std::string> contents =
        rest == "(none)" ? std::nullopt : std::optional(Transcript::unescape(rest));
    auto result = SVGFigurerDocument::open(
        FileReadRequest{contents, name, contentTypeForPath(name)}, fixture.environment());
    std::string answer;
    if (const auto* failure = std::get_if<FileReadError>(&result)) {
      answer = std::string("> ") +
               (failure->kind == FileReadError::Kind::decoding ? "not decoded: " : "corrupt: ") +
               (failure->message.starts_with("[json.exception") ? "(the JSON parser's reason)"
                                                                : failure->message) +
               "\n";
    } else {
      const auto& doc = *std::get<std::unique_ptr<SVGFigurerDocument>>(result);
      const auto& generated = doc.generatedSwift();
      const std::string swift = doc.swift() == generated ? "the generated text"
                                : generated == svgHeaderComment(doc.svgString()) + doc.swift()
                                    ? "the generated text without its header"
                                    : Transcript::escape(doc.swift());
      answer = "> svg: " + Transcript::escape(doc.svgString()) + "\n> swift: " + swift +
               "\n> generated: " +
               (generated == AppTest::expectedSwift(doc.svgString(), doc.config())
                    ? "from the SVG"
                    : Transcript::escape(generated)) +
               "\n> " + (doc.isEdited() ? "edited" : "unedited") +
               (doc.rebuildFailed() ? ", rebuild failed" : "") +
               (doc.config() == fixture.defaults.defaultConfiguration() ? ", default settings"
                                                                        : ", other settings") +
               "\n";
    }
    for (const auto& line : fixture.log.lines) {
      answer += "> " + std::string(CoreS::logLevelName(line.level)) + ": " + line.text + "\n";
    }
    return answer;
  });
}

TEST(DocumentFile, FromPathReadsBytesAndGivesNoContentsForAFolder) {
  Fixture fixture;
  const auto file = fixture.folder.path() / "x.svg";
  AppTest::writeFile(file, circleSVG);
  EXPECT_EQ(FileReadRequest::fromPath(file),
            (FileReadRequest{circleSVG, "x.svg", ContentType::svg}));
  EXPECT_FALSE(FileReadRequest::fromPath(fixture.folder.path()).contents.has_value());
}

TEST(SnapshotFormat, WritesCompactJSONThatReadsBack) {
  const Snapshot snapshot{"<svg>\n</svg>", "// \"quoted\"\n", SVGFigurerConfiguration::fresh()};
  const auto bytes = encodeSnapshot(snapshot);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes.value->find('\n'), std::string::npos);
  EXPECT_NE(bytes.value->find(R"("svg":"<svg>\n</svg>")"), std::string::npos);
  EXPECT_EQ(bytes.value->back(), '}');
  const auto decoded = decodeSnapshot(*bytes.value);
  ASSERT_TRUE(decoded) << decoded.error;
  EXPECT_EQ(*decoded.value, snapshot);
  EXPECT_FALSE(encodeSnapshot(Snapshot{"\xFF", "", std::nullopt}));
  const auto withoutConfig = encodeSnapshot(Snapshot{"a", "b", std::nullopt});
  EXPECT_EQ(*withoutConfig.value, R"({"svg":"a","swift":"b"})");
}

}  // namespace
