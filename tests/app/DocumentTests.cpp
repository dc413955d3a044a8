// The document's rebuild rule: when generated text reaches the user's text, what a settings
// change persists, what observers see, and how new documents take pending content.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AppTestSupport.h"
#include "SVGParser/SVGParser.h"

using namespace SVGFigurerApp;
using AppTest::Fixture;
using Property = SVGFigurerDocument::Property;

namespace {

const std::string circleSVG =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><circle r="5"/></svg>)";
const std::string squareSVG =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><rect width="5" height="5"/></svg>)";

class DocumentTest : public testing::Test {
 protected:
  Fixture fixture;
  SVGFigurerConfiguration withoutHeader() {
    auto config = SVGFigurerConfiguration::fresh();
    config.prefixSVG = false;
    return config;
  }
};

TEST_F(DocumentTest, NewDefaultDocumentIsGeneratedWithHeader) {
  SVGFigurerDocument document(fixture.environment());
  EXPECT_EQ(document.svgString(), defaultDocumentSVG);
  EXPECT_FALSE(document.swift().empty());
  EXPECT_EQ(document.swift(), document.generatedSwift());
  EXPECT_TRUE(document.swift().starts_with("/**\n * Generated from SVG:\n * \n"));
  EXPECT_FALSE(document.rebuildFailed());
  EXPECT_FALSE(document.isRebuilding());
  EXPECT_FALSE(document.isEdited());
}

TEST_F(DocumentTest, GivenSourceTextSuppressesTheFirstGeneration) {
  SVGFigurerDocument document(circleSVG, "// mine\n", fixture.environment());
  EXPECT_EQ(document.swift(), "// mine\n");
  EXPECT_EQ(document.generatedSwift(), "");
  EXPECT_EQ(fixture.log.count("rebuilding SVG ..."), 0u);
}

TEST_F(DocumentTest, WritingTheSameSVGPublishesWithoutRebuilding) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  std::vector<Property> seen;
  document.addObserver([&](const SVGFigurerDocument&, Property p) { seen.push_back(p); });
  const auto rebuilds = fixture.log.count("rebuilding SVG ...");
  document.setSVGString(circleSVG);
  EXPECT_EQ(seen, std::vector<Property>{Property::svgString});
  EXPECT_EQ(fixture.log.count("rebuilding SVG ..."), rebuilds);
}

TEST_F(DocumentTest, RebuildPublishesEachStepInOrder) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  struct Seen {
    Property property;
    std::string generated;
    bool rebuilding;
  };
  std::vector<Seen> seen;
  document.addObserver([&](const SVGFigurerDocument& d, Property p) {
    seen.push_back({p, d.generatedSwift(), d.isRebuilding()});
  });
  document.setSVGString(squareSVG);
  ASSERT_EQ(seen.size(), 7u);
  EXPECT_EQ(seen[0].property, Property::svgString);
  EXPECT_EQ(seen[1].property, Property::isRebuilding);
  EXPECT_TRUE(seen[1].rebuilding);
  EXPECT_EQ(seen[2].property, Property::generatedSwift);
  EXPECT_EQ(seen[2].generated, "") << "observers see the cleared text first";
  EXPECT_EQ(seen[3].property, Property::generatedSwift);
  EXPECT_FALSE(seen[3].generated.empty());
  EXPECT_EQ(seen[4].property, Property::rebuildFailed);
  EXPECT_EQ(seen[5].property, Property::swift);
  EXPECT_EQ(seen[6].property, Property::isRebuilding);
  EXPECT_FALSE(seen[6].rebuilding);
}

struct FailureRow {
  const char* name;
  std::string svg;
  std::string text;
  bool failed;
};

class DocumentFailureText : public DocumentTest, public testing::WithParamInterface<FailureRow> {};

TEST_P(DocumentFailureText, ReplacesUneditedSourceWithoutHeader) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  document.setSVGString(GetParam().svg);
  EXPECT_EQ(document.generatedSwift(), GetParam().text);
  EXPECT_EQ(document.swift(), GetParam().text);
  EXPECT_EQ(document.rebuildFailed(), GetParam().failed);
  EXPECT_TRUE(fixture.log.contains(CoreS::LogLevel::warn, "Parsing of SVG failed."));
  // The failure text is unedited, so the next good parse replaces it by itself.
  document.setSVGString(circleSVG);
  EXPECT_FALSE(document.rebuildFailed());
  EXPECT_EQ(document.swift(), document.generatedSwift());
  EXPECT_TRUE(document.swift().starts_with("/**"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DocumentFailureText,
    testing::Values(FailureRow{"Blanks", " \n\r\n \u00a0\u3000", "// Empty SVG\n", false},
                    FailureRow{"Tab", "\t", "// Could not parse SVG\n", true},
                    FailureRow{"NotSVG", "hello <", "// Could not parse SVG\n", true},
                    FailureRow{"Empty", "", "// Empty SVG\n", false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(DocumentTest, FailedParseLeavesEditedSourceAlone) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  document.setSwift("// edited\n");
  document.setSVGString("not svg");
  EXPECT_EQ(document.swift(), "// edited\n");
  EXPECT_EQ(document.generatedSwift(), "// Could not parse SVG\n");
  EXPECT_TRUE(document.rebuildFailed());
  EXPECT_TRUE(fixture.log.contains(CoreS::LogLevel::log, "Swift was modified"));
}

class RecordingUndo final : public UndoRegistrar {
 public:
  std::vector<std::function<void(SVGFigurerDocument&)>> actions;
  void registerUndo(SVGFigurerDocument&, std::function<void(SVGFigurerDocument&)> a) override {
    actions.push_back(std::move(a));
  }
};

TEST_F(DocumentTest, EditApplyAndUndo) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  document.setSwift("// edited\n");
  const std::string before = document.generatedSwift();
  document.setSVGString(squareSVG);
  EXPECT_EQ(document.swift(), "// edited\n");
  EXPECT_NE(document.generatedSwift(), before);
  EXPECT_TRUE(document.isEdited());

  RecordingUndo undo;
  document.applyGeneratedSwift(&undo);
  EXPECT_EQ(document.swift(), document.generatedSwift());
  ASSERT_EQ(undo.actions.size(), 1u);
  const auto rebuilds = fixture.log.count("rebuilding SVG ...");
  undo.actions[0](document);
  EXPECT_EQ(document.swift(), "// edited\n");
  EXPECT_TRUE(document.isEdited());
  EXPECT_EQ(undo.actions.size(), 1u) << "undo registers no redo";
  EXPECT_EQ(fixture.log.count("rebuilding SVG ..."), rebuilds) << "undo does not rebuild";
}

TEST_F(DocumentTest, TypingTheGeneratedTextMakesTheDocumentUneditedAgain) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  const std::string before = document.generatedSwift();
  document.setSwift("x");
  document.setSwift(before);
  document.setSVGString(squareSVG);
  EXPECT_EQ(document.swift(), document.generatedSwift());
  EXPECT_NE(document.swift(), before);
}

TEST_F(DocumentTest, WithoutPrefixTheSourceIsTheExportersText) {
  fixture.defaults.setDefaultConfiguration(withoutHeader());
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  auto svg = SVGParser::parse(circleSVG, {});
  ASSERT_TRUE(svg);
  EXPECT_EQ(document.generatedSwift(),
            SVGSwiftUIExporter::generate(*svg, withoutHeader().exporterConfig()));
}

TEST_F(DocumentTest, EqualSettingsNeitherRebuildNorPersist) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  const auto rebuilds = fixture.log.count("rebuilding SVG ...");
  document.setConfig(document.config());
  EXPECT_EQ(fixture.log.count("rebuilding SVG ..."), rebuilds);
  EXPECT_FALSE(fixture.store().data(defaultConfigurationKey).has_value());
}

TEST_F(DocumentTest, ChangedSettingsRebuildAndBecomeThePersistedDefault) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  document.setConfig(withoutHeader());
  EXPECT_FALSE(document.swift().starts_with("/**"));
  EXPECT_EQ(fixture.defaults.defaultConfiguration(), withoutHeader());
  const auto stored = fixture.store().data(defaultConfigurationKey);
  ASSERT_TRUE(stored);
  EXPECT_EQ(*decodeConfigurationText(*stored).value, withoutHeader());
  EXPECT_TRUE(fixture.log.contains(CoreS::LogLevel::log, "writing default config"));
  // A second document starts from the new default.
  SVGFigurerDocument second(circleSVG, "", fixture.environment());
  EXPECT_EQ(second.config(), withoutHeader());
}

TEST_F(DocumentTest, NewDocumentTakesThePendingRecordWithoutItsSettings) {
  auto other = SVGFigurerConfiguration::fresh();
  other.indent = 7;
  fixture.pending.append(Snapshot{squareSVG, "// from the queue\n", other});
  SVGFigurerDocument document(fixture.environment());
  EXPECT_TRUE(fixture.pending.empty());
  EXPECT_EQ(document.svgString(), squareSVG);
  EXPECT_EQ(document.swift(), "// from the queue\n");
  EXPECT_EQ(document.generatedSwift(), "// from the queue\n");
  EXPECT_FALSE(document.isEdited());
  EXPECT_EQ(document.config(), SVGFigurerConfiguration::fresh());
}

TEST_F(DocumentTest, SnapshotHoldsTheCurrentTexts) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  document.setSwift("// mine\n");
  EXPECT_EQ(document.snapshot(), (Snapshot{circleSVG, "// mine\n", document.config()}));
}

TEST_F(DocumentTest, RemovedObserverHearsNothing) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  int calls = 0;
  const auto id = document.addObserver([&](const SVGFigurerDocument&, Property) { ++calls; });
  document.setSwift("a");
  document.removeObserver(id);
  document.setSwift("b");
  EXPECT_EQ(calls, 1);
}

struct HeaderRow {
  const char* name;
  std::string svg;
  std::string header;
};

class HeaderComment : public testing::TestWithParam<HeaderRow> {};

TEST_P(HeaderComment, FoldsTheNonEmptyLinesAsTheyStand) {
  EXPECT_EQ(svgHeaderComment(GetParam().svg), GetParam().header);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HeaderComment,
    testing::Values(
        HeaderRow{"BlankLinesDropped", "<svg>\n\n\n</svg>\n",
                  "/**\n * Generated from SVG:\n * \n *     <svg>\n *     </svg>\n * \n */\n"},
        HeaderRow{"BlanksOnlyLineKept", "a\n  \nb",
                  "/**\n * Generated from SVG:\n * \n *     a\n *       \n *     b\n * \n */\n"},
        HeaderRow{"CarriageReturnStays", "a\r\nb",
                  "/**\n * Generated from SVG:\n * \n *     a\r\n *     b\n * \n */\n"},
        HeaderRow{"CommentEndNotEscaped", "<!-- */ -->",
                  "/**\n * Generated from SVG:\n * \n *     <!-- */ -->\n * \n */\n"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Generation, MakeSnapshotHasNoHeaderAndNamesTheFile) {
  const auto config = SVGFigurerConfiguration::fresh();
  const auto good = makeSnapshot(circleSVG, "c.svg", config);
  EXPECT_FALSE(good.swift.starts_with("/**"));
  EXPECT_EQ(good.config, config);
  EXPECT_EQ(good.svg, circleSVG);
  EXPECT_EQ(makeSnapshot("", "e.svg", config).swift, "// Could not parse SVG e.svg\n");
  EXPECT_EQ(makeSnapshot("<", std::nullopt, config).swift, "// Could not parse SVG\n");
}

TEST(Generation, HeaderWrapsTheExportersTextExactly) {
  AppTest::RecordingLogger log;
  const auto config = SVGFigurerConfiguration::fresh();
  const auto result = generateSwift(circleSVG, config, log);
  auto svg = SVGParser::parse(circleSVG, {});
  ASSERT_TRUE(svg);
  EXPECT_EQ(result.text, svgHeaderComment(circleSVG) +
                             SVGSwiftUIExporter::generate(*svg, config.exporterConfig()));
  EXPECT_TRUE(
      log.contains(CoreS::LogLevel::log, "rebuilding SVG ... " + std::to_string(circleSVG.size())));
}

// The streamed form must hand over exactly the text of the whole-text form, also when the
// text is many times the stream's piece size and when the SVG fails or is blank.
TEST(Generation, StreamedPiecesJoinToTheWholeText) {
  std::string large = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 100 100\">\n";
  for (int i = 0; i < 2000; ++i) {
    large += "<g><path d=\"M" + std::to_string(i % 97) + " 1.25 C3 4 5.5 6 7 8 A5 5 0 0 1 " +
             std::to_string(i % 13) + " 9 Z\"/></g>\n";
  }
  large += "</svg>\n";
  const std::string cases[] = {std::string(circleSVG), large, "<svg", " \n ", ""};
  auto config = SVGFigurerConfiguration::fresh();
  for (const bool prefix : {true, false}) {
    config.prefixSVG = prefix;
    for (const auto& svg : cases) {
      AppTest::RecordingLogger log;
      const auto whole = generateSwift(svg, config, log);
      std::string joined;
      std::size_t pieces = 0;
      const auto sink = [&](std::string_view piece) {
        EXPECT_FALSE(piece.empty());
        joined += piece;
        ++pieces;
      };
      EXPECT_EQ(generateSwift(svg, config, log, {}, sink), whole.failed);
      EXPECT_EQ(joined, whole.text) << svg.substr(0, 40);
      if (whole.text.size() > 200'000) {
        EXPECT_GT(pieces, 2u);
      }
      std::string given = svg;
      joined.clear();
      EXPECT_EQ(generateSwift(std::move(given), config, log, {}, sink), whole.failed);
      EXPECT_EQ(joined, whole.text);
    }
  }
}

}  // namespace
