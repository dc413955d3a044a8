// The document's rebuild rule: when generated text reaches the user's text, what a settings
// change persists, what observers see, and how new documents take pending content.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AppTestSupport.h"
#include "FigurerUtilities/Transcript.h"
#include "SVGParser/SVGParser.h"

using namespace SVGFigurerApp;
using AppTest::circleSVG;
using AppTest::Fixture;
using Property = SVGFigurerDocument::Property;

namespace {

const std::string squareSVG =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><rect width="5" height="5"/></svg>)";

SVGFigurerConfiguration withoutHeader() {
  auto config = SVGFigurerConfiguration::fresh();
  config.prefixSVG = false;
  return config;
}

class DocumentTest : public testing::Test {
 protected:
  Fixture fixture;
  std::size_t rebuilds() const { return fixture.log.count("rebuilding SVG ..."); }
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
  EXPECT_EQ(rebuilds(), 0u);
  EXPECT_EQ(document.snapshot(), (Snapshot{circleSVG, "// mine\n", document.config()}));
}

TEST_F(DocumentTest, ObserversSeeEachStepOfARebuildInOrderUntilRemoved) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  std::vector<Property> seen;
  std::vector<std::string> generated;
  std::vector<bool> rebuilding;
  const auto id = document.addObserver([&](const SVGFigurerDocument& d, Property p) {
    seen.push_back(p);
    generated.push_back(d.generatedSwift());
    rebuilding.push_back(d.isRebuilding());
  });
  // The same SVG again publishes without rebuilding.
  const auto before = rebuilds();
  document.setSVGString(circleSVG);
  EXPECT_EQ(seen, std::vector<Property>{Property::svgString});
  EXPECT_EQ(rebuilds(), before);

  seen.clear();
  generated.clear();
  rebuilding.clear();
  document.setSVGString(squareSVG);
  EXPECT_EQ(seen, (std::vector<Property>{Property::svgString, Property::isRebuilding,
                                         Property::generatedSwift, Property::generatedSwift,
                                         Property::rebuildFailed, Property::swift,
                                         Property::isRebuilding}));
  ASSERT_EQ(seen.size(), 7u);
  EXPECT_EQ(rebuilding, (std::vector<bool>{false, true, true, true, true, true, false}));
  EXPECT_EQ(generated[2], "") << "observers see the cleared text first";
  EXPECT_EQ(generated[3], document.generatedSwift());

  document.removeObserver(id);
  document.setSwift("b");
  EXPECT_EQ(seen.size(), 7u);
}

TEST_F(DocumentTest, FailureTextReplacesUneditedSourceWithoutHeader) {
  const struct {
    std::string svg;
    std::string text;
    bool failed;
  } rows[] = {{" \n\r\n \u00a0\u3000", "// Empty SVG\n", false},
              {"\t", "// Could not parse SVG\n", true},
              {"hello <", "// Could not parse SVG\n", true},
              {"", "// Empty SVG\n", false}};
  for (const auto& row : rows) {
    Fixture fixture;
    SVGFigurerDocument document(circleSVG, "", fixture.environment());
    document.setSVGString(row.svg);
    EXPECT_EQ(document.generatedSwift(), row.text) << row.svg;
    EXPECT_EQ(document.swift(), row.text);
    EXPECT_EQ(document.rebuildFailed(), row.failed);
    EXPECT_TRUE(fixture.log.contains(CoreS::LogLevel::warn, "Parsing of SVG failed."));
    // The failure text is unedited, so the next good parse replaces it by itself.
    document.setSVGString(circleSVG);
    EXPECT_FALSE(document.rebuildFailed());
    EXPECT_EQ(document.swift(), document.generatedSwift());
    EXPECT_TRUE(document.swift().starts_with("/**"));
  }
}

class RecordingUndo final : public UndoRegistrar {
 public:
  std::vector<std::function<void(SVGFigurerDocument&)>> actions;
  void registerUndo(SVGFigurerDocument&, std::function<void(SVGFigurerDocument&)> a) override {
    actions.push_back(std::move(a));
  }
};

TEST_F(DocumentTest, EditedSourceStaysUntilAppliedAndUndoBringsItBack) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  document.setSwift("// edited\n");
  document.setSVGString("not svg");
  EXPECT_EQ(document.swift(), "// edited\n");
  EXPECT_EQ(document.generatedSwift(), "// Could not parse SVG\n");
  EXPECT_TRUE(document.rebuildFailed());
  EXPECT_TRUE(fixture.log.contains(CoreS::LogLevel::log, "Swift was modified"));
  document.setSVGString(squareSVG);
  EXPECT_EQ(document.swift(), "// edited\n");
  EXPECT_EQ(document.generatedSwift(), AppTest::expectedSwift(squareSVG, document.config()));
  EXPECT_TRUE(document.isEdited());

  RecordingUndo undo;
  document.applyGeneratedSwift(&undo);
  EXPECT_EQ(document.swift(), document.generatedSwift());
  ASSERT_EQ(undo.actions.size(), 1u);
  const auto count = rebuilds();
  undo.actions[0](document);
  EXPECT_EQ(document.swift(), "// edited\n");
  EXPECT_TRUE(document.isEdited());
  EXPECT_EQ(undo.actions.size(), 1u) << "undo registers no redo";
  EXPECT_EQ(rebuilds(), count) << "undo does not rebuild";

  // Typing the generated text makes the document unedited again.
  document.setSwift(document.generatedSwift());
  document.setSVGString(circleSVG);
  EXPECT_EQ(document.swift(), AppTest::expectedSwift(circleSVG, document.config()));
}

TEST_F(DocumentTest, ChangedSettingsRebuildAndBecomeThePersistedDefaultButEqualOnesDoNot) {
  SVGFigurerDocument document(circleSVG, "", fixture.environment());
  const auto count = rebuilds();
  document.setConfig(document.config());
  EXPECT_EQ(rebuilds(), count);
  EXPECT_FALSE(fixture.store().data(defaultConfigurationKey).has_value());

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
  EXPECT_EQ(second.generatedSwift(), AppTest::expectedSwift(circleSVG, withoutHeader()));
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

TEST(Generation, HeaderFoldsTheNonEmptyLinesAsTheyStand) {
  Transcript::expect("app/data/header-comments.txt", [](const std::string& svg) {
    return "> " + Transcript::escape(svgHeaderComment(Transcript::unescape(svg))) + "\n";
  });
}

TEST(Generation, MakeSnapshotHasNoHeaderAndNamesTheFile) {
  const auto config = SVGFigurerConfiguration::fresh();
  const auto good = makeSnapshot(circleSVG, "c.svg", config);
  EXPECT_FALSE(good.swift.starts_with("/**"));
  EXPECT_EQ(good.config, config);
  EXPECT_EQ(good.svg, circleSVG);
  EXPECT_EQ(makeSnapshot("", "e.svg", config).swift, "// Could not parse SVG e.svg\n");
  EXPECT_EQ(makeSnapshot("<", std::nullopt, config).swift, "// Could not parse SVG\n");
}

TEST(Generation, TheTextIsTheExportersWithTheHeaderWhenAskedFor) {
  auto svg = SVGParser::parse(circleSVG, {});
  ASSERT_TRUE(svg);
  for (const auto& config : {SVGFigurerConfiguration::fresh(), withoutHeader()}) {
    AppTest::RecordingLogger log;
    EXPECT_EQ(generateSwift(circleSVG, config, log).text,
              (config.prefixSVG ? svgHeaderComment(circleSVG) : "") +
                  SVGSwiftUIExporter::generate(*svg, config.exporterConfig()));
    EXPECT_TRUE(log.contains(CoreS::LogLevel::log,
                             "rebuilding SVG ... " + std::to_string(circleSVG.size())));
  }
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
