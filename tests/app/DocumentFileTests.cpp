// Opening files of the three kinds, the failures of reading, and the bytes a document saves.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "AppTestSupport.h"

using namespace SVGFigurerApp;
using AppTest::Fixture;

namespace {

const std::string circleSVG =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><circle r="5"/></svg>)";

FileReadRequest request(std::optional<std::string> contents, std::string name) {
  return FileReadRequest{std::move(contents), name, contentTypeForPath(name)};
}

struct TypeRow {
  std::string path;
  ContentType type;
};

class ContentTypes : public testing::TestWithParam<TypeRow> {};

TEST_P(ContentTypes, FollowTheExtension) {
  EXPECT_EQ(contentTypeForPath(GetParam().path), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(Rows, ContentTypes,
                         testing::Values(TypeRow{"a.svg", ContentType::svg},
                                         TypeRow{"dir/A.SVG", ContentType::svg},
                                         TypeRow{"b.swift", ContentType::swiftSource},
                                         TypeRow{"c.svgfigurer", ContentType::document},
                                         TypeRow{"d.svgz", ContentType::other},
                                         TypeRow{"svg", ContentType::other},
                                         TypeRow{"e.txt", ContentType::other}));

class DocumentFileTest : public testing::Test {
 protected:
  Fixture fixture;
  SVGFigurerDocument::OpenResult open(std::optional<std::string> contents, std::string name) {
    return SVGFigurerDocument::open(request(std::move(contents), std::move(name)),
                                    fixture.environment());
  }
  // The opened document; a failed open ends the test.
  static SVGFigurerDocument& document(SVGFigurerDocument::OpenResult& result) {
    auto* opened = std::get_if<std::unique_ptr<SVGFigurerDocument>>(&result);
    if (opened == nullptr) {
      throw std::runtime_error("open failed: " + std::get<FileReadError>(result).message);
    }
    return **opened;
  }
  FileReadError error(const SVGFigurerDocument::OpenResult& result) {
    const auto* failure = std::get_if<FileReadError>(&result);
    if (failure == nullptr) {
      ADD_FAILURE() << "open succeeded";
      return {};
    }
    return *failure;
  }
};

TEST_F(DocumentFileTest, DocumentWithoutConfigReadsAndKeepsItsSource) {
  auto result =
      open(R"({"svg":")" + std::string("<svg/>") + R"(","swift":"// kept\n"})", "a.svgfigurer");
  auto& doc = document(result);
  EXPECT_EQ(doc.svgString(), "<svg/>");
  EXPECT_EQ(doc.swift(), "// kept\n");
  EXPECT_TRUE(doc.isEdited());
  EXPECT_FALSE(doc.generatedSwift().empty());
  EXPECT_EQ(fixture.log.count("Swift was"), 0u) << "opening does not run the rebuild rule";
}

TEST_F(DocumentFileTest, StoredSettingsMustDecodeButAreNotApplied) {
  auto stored = SVGFigurerConfiguration::fresh();
  stored.prefixSVG = false;
  stored.indent = 5;
  const auto bytes = encodeSnapshot(Snapshot{circleSVG, "x", stored});
  ASSERT_TRUE(bytes);
  auto result = open(*bytes.value, "b.svgfigurer");
  EXPECT_EQ(document(result).config(), SVGFigurerConfiguration::fresh());
  EXPECT_TRUE(document(result).generatedSwift().starts_with("/**"));

  auto broken = open(
      R"({"svg":"","swift":"","config":{"rootViewName":"","indentUsing":"x","indent":2,"initType":"type","positioningType":"padding"}})",
      "c.svgfigurer");
  EXPECT_EQ(error(broken).kind, FileReadError::Kind::decoding);
}

struct BadDocumentRow {
  const char* name;
  std::string bytes;
};

class BadDocumentFile : public DocumentFileTest,
                        public testing::WithParamInterface<BadDocumentRow> {};

TEST_P(BadDocumentFile, FailsWithTheDecodersError) {
  auto result = open(GetParam().bytes, "x.svgfigurer");
  const auto failure = error(result);
  EXPECT_EQ(failure.kind, FileReadError::Kind::decoding);
  EXPECT_FALSE(failure.message.empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, BadDocumentFile,
                         testing::Values(BadDocumentRow{"NoSwift", R"({"svg":"<svg/>"})"},
                                         BadDocumentRow{"SwiftNotText", R"({"svg":"","swift":1})"},
                                         BadDocumentRow{"NotJSON", "<svg/>"},
                                         BadDocumentRow{"Array", "[]"},
                                         BadDocumentRow{"Empty", ""}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(DocumentFileTest, SVGFileOpensEditedWhileThePrefixIsOn) {
  auto result = open(circleSVG, "icon.svg");
  auto& doc = document(result);
  EXPECT_EQ(doc.svgString(), circleSVG);
  EXPECT_TRUE(doc.isEdited());
  EXPECT_EQ(doc.generatedSwift(), svgHeaderComment(circleSVG) + doc.swift());
}

TEST_F(DocumentFileTest, SVGFileOpensUneditedWithoutThePrefix) {
  auto config = SVGFigurerConfiguration::fresh();
  config.prefixSVG = false;
  fixture.defaults.setDefaultConfiguration(config);
  auto result = open(circleSVG, "icon.svg");
  EXPECT_FALSE(document(result).isEdited());
}

TEST_F(DocumentFileTest, UnparsableAndEmptySVGFiles) {
  auto bad = open("<svg", "broken.svg");
  EXPECT_EQ(document(bad).swift(), "// Could not parse SVG broken.svg\n");
  EXPECT_TRUE(document(bad).rebuildFailed());
  auto empty = open("", "empty.svg");
  EXPECT_EQ(document(empty).swift(), "// Could not parse SVG empty.svg\n");
  EXPECT_EQ(document(empty).generatedSwift(), "// Empty SVG\n");
  EXPECT_TRUE(document(empty).isEdited());
  EXPECT_FALSE(document(empty).rebuildFailed());
}

TEST_F(DocumentFileTest, SourceFileOpensWithNoSVG) {
  auto result = open("struct A {}\n", "A.swift");
  auto& doc = document(result);
  EXPECT_EQ(doc.svgString(), "<!-- No SVG -->");
  EXPECT_EQ(doc.swift(), "struct A {}\n");
  EXPECT_TRUE(doc.rebuildFailed());
  EXPECT_EQ(doc.generatedSwift(), "// Could not parse SVG\n");
}

TEST_F(DocumentFileTest, TextThatIsNotUTF8IsACorruptFile) {
  for (const char* name : {"a.svg", "a.swift"}) {
    auto result = open(std::string("<svg>\xC3\x28</svg>"), name);
    EXPECT_EQ(error(result).kind, FileReadError::Kind::corruptFile) << name;
  }
}

TEST_F(DocumentFileTest, UnrelatedTypeLogsItsSize) {
  auto result = open("hello world!", "notes.txt");
  EXPECT_EQ(error(result).message, corruptFileMessage);
  EXPECT_TRUE(fixture.log.contains(CoreS::LogLevel::error,
                                   "unexpected file type: public.data size: #12 bytes notes.txt"));
}

TEST_F(DocumentFileTest, MissingContentsLogAccessFailure) {
  auto result = open(std::nullopt, "folder.svg");
  EXPECT_EQ(error(result).kind, FileReadError::Kind::corruptFile);
  EXPECT_TRUE(fixture.log.contains(CoreS::LogLevel::error, "could not access file data:"));
}

TEST_F(DocumentFileTest, FromPathReadsBytesAndGivesNoContentsForAFolder) {
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
