// The document commands of `svgfigurer`, run as a user runs them: a separate process with its
// own configuration folder, standard output and standard error kept apart.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "AppTestSupport.h"

using namespace SVGFigurerApp;

namespace {

struct Outcome {
  int exitCode = -1;
  std::string out;
  std::string err;
};

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (char c : text) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

class CLITest : public testing::Test {
 protected:
  AppTest::TemporaryFolder folder;
  std::filesystem::path config() const { return folder.path() / "config"; }
  std::filesystem::path file(const std::string& name, std::string_view contents) const {
    const auto path = folder.path() / name;
    AppTest::writeFile(path, contents);
    return path;
  }

  Outcome run(const std::vector<std::string>& arguments, const std::string& environment = "") {
    std::string command = "cd " + quoted(folder.path().string()) +
                          " && XDG_CONFIG_HOME=" + quoted(config().string()) + " " + environment +
                          " " + quoted(SVGFIGURER_CLI);
    for (const auto& argument : arguments) command += " " + quoted(argument);
    const auto errPath = folder.path() / "stderr.txt";
    command += " 2>" + quoted(errPath.string());
    Outcome result;
    std::FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) return result;
    char buffer[4096];
    std::size_t count;
    while ((count = std::fread(buffer, 1, sizeof buffer, pipe)) > 0)
      result.out.append(buffer, count);
    const int status = ::pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.err = AppTest::readFile(errPath);
    return result;
  }

  static std::string expectedSwift(std::string_view svg, const SVGFigurerConfiguration& config) {
    AppTest::RecordingLogger log;
    return generateSwift(svg, config, log).text;
  }
};

const std::string circleSVG =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><circle r="5"/></svg>)";

TEST_F(CLITest, ConvertPrintsExactlyTheGeneratedText) {
  const auto path = file("default.svg", defaultDocumentSVG);
  const auto result = run({"convert", path.string()}, "LOGLEVEL=trace");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, expectedSwift(defaultDocumentSVG, SVGFigurerConfiguration::fresh()));
  EXPECT_NE(result.err.find("rebuilding SVG ..."), std::string::npos) << "logs go to stderr";
}

struct FlagRow {
  const char* name;
  std::vector<std::string> flags;
  std::function<void(SVGFigurerConfiguration&)> apply;
};

class ConvertFlags : public CLITest, public testing::WithParamInterface<FlagRow> {};

TEST_P(ConvertFlags, OverrideTheStartingSettings) {
  const auto path = file("c.svg", circleSVG);
  auto arguments = GetParam().flags;
  arguments.insert(arguments.begin(), "convert");
  arguments.push_back(path.string());
  auto config = SVGFigurerConfiguration::fresh();
  GetParam().apply(config);
  const auto result = run(arguments);
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_EQ(result.out, expectedSwift(circleSVG, config));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ConvertFlags,
    testing::Values(FlagRow{"NoPrefix", {"--no-prefix-svg"}, [](auto& c) { c.prefixSVG = false; }},
                    FlagRow{"TabsOfOne",
                            {"--indent-using", "tabs", "--indent", "1"},
                            [](auto& c) {
                              c.indentUsing = IndentType::tabs;
                              c.indent = 1;
                            }},
                    FlagRow{"RootAndDigits",
                            {"--root-view-name", "Dot", "--max-fraction-digits", "1"},
                            [](auto& c) {
                              c.rootViewName = "Dot";
                              c.maximumFractionDigits = 1;
                            }},
                    FlagRow{
                        "Switches",
                        {"--no-imports", "--no-preview-provider", "--no-info-comments",
                         "--hex-colors", "--indent-empty-lines", "--no-newline-after-close-path"},
                        [](auto& c) {
                          c.imports = c.previewProvider = c.infoComments = false;
                          c.useHexColor = c.indentEmptyLines = true;
                          c.newlineAfterClosePath = false;
                        }},
                    FlagRow{"InitAndOffset",
                            {"--init-type", "init", "--positioning", "offset"},
                            [](auto& c) {
                              c.initType = InitType::autoInit;
                              c.positioningType = PositioningStyle::offset;
                            }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(CLITest, ConvertStartsFromTheSavedDefaultUnlessFresh) {
  const auto path = file("c.svg", circleSVG);
  ASSERT_EQ(run({"config", "set", "prefixSVG", "false"}).exitCode, 0);
  auto saved = SVGFigurerConfiguration::fresh();
  saved.prefixSVG = false;
  EXPECT_EQ(run({"convert", path.string()}).out, expectedSwift(circleSVG, saved));
  EXPECT_EQ(run({"convert", "--fresh", path.string()}).out,
            expectedSwift(circleSVG, SVGFigurerConfiguration::fresh()));
  const auto settings = file("settings.json", R"({"rootViewName":"Z","indentUsing":" ","indent":1,)"
                                              R"("initType":"type","positioningType":"padding"})");
  auto fromFile = SVGFigurerConfiguration::fresh();
  fromFile.rootViewName = "Z";
  fromFile.indent = 1;
  fromFile.maximumFractionDigits = 2;
  EXPECT_EQ(run({"convert", "--config", settings.string(), path.string()}).out,
            expectedSwift(circleSVG, fromFile));
  const auto bad = file("bad.json", R"({"indent":1})");
  const auto refused = run({"convert", "--config", bad.string(), path.string()});
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_EQ(refused.out, "");
}

TEST_F(CLITest, ConvertOfTextThatIsNotSVGExitsOne) {
  const auto path = file("x.svg", "not svg");
  const auto result = run({"convert", path.string()});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "// Could not parse SVG\n");
  const auto empty = run({"convert", file("e.svg", " \n").string()});
  EXPECT_EQ(empty.exitCode, 0);
  EXPECT_EQ(empty.out, "// Empty SVG\n");
}

TEST_F(CLITest, BatchWritesOneFilePerInputAndNamesEachFailure) {
  const auto good = file("my-icon_2.svg", circleSVG);
  const auto other = file("24px.svg", circleSVG);
  const auto bad = file("broken.svg", "<svg");
  const auto out = folder.path() / "out";
  const auto result = run({"convert", "--no-prefix-svg", "-o", out.string(), good.string(),
                           bad.string(), "missing.svg", other.string()});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_NE(result.err.find("broken.svg"), std::string::npos) << result.err;
  EXPECT_NE(result.err.find("missing.svg"), std::string::npos) << result.err;
  auto config = SVGFigurerConfiguration::fresh();
  config.prefixSVG = false;
  config.rootViewName = "MyIcon2";
  EXPECT_EQ(AppTest::readFile(out / "my-icon_2.swift"), expectedSwift(circleSVG, config));
  config.rootViewName = "Z24px";
  EXPECT_EQ(AppTest::readFile(out / "24px.swift"), expectedSwift(circleSVG, config));
  EXPECT_FALSE(std::filesystem::exists(out / "broken.swift"));

  const auto clean = run({"convert", "-o", out.string(), good.string()});
  EXPECT_EQ(clean.exitCode, 0) << clean.err;
}

TEST_F(CLITest, InspectShowsTheOpenedDocument) {
  const auto path = file("c.svg", circleSVG);
  const auto result = run({"inspect", path.string()});
  ASSERT_EQ(result.exitCode, 0) << result.err;
  const auto json = nlohmann::json::parse(result.out);
  EXPECT_EQ(json["svg"], circleSVG);
  EXPECT_EQ(json["edited"], true);
  EXPECT_EQ(json["rebuildFailed"], false);
  EXPECT_EQ(json["generatedSwift"], expectedSwift(circleSVG, SVGFigurerConfiguration::fresh()));
  EXPECT_EQ(run({"inspect", "nothing-here.svg"}).exitCode, 2);
  EXPECT_EQ(run({"inspect", file("a.txt", "hello").string()}).exitCode, 1);
}

TEST_F(CLITest, NewSavesADocumentThatInspectReadsBack) {
  const auto path = file("c.svg", circleSVG);
  const auto document = folder.path() / "c.svgfigurer";
  ASSERT_EQ(run({"new", path.string(), "-o", document.string()}).exitCode, 0);
  const auto snapshot = decodeSnapshot(AppTest::readFile(document));
  ASSERT_TRUE(snapshot) << snapshot.error;
  EXPECT_EQ(snapshot.value->svg, circleSVG);
  EXPECT_EQ(snapshot.value->config, SVGFigurerConfiguration::fresh());
  const auto inspected = nlohmann::json::parse(run({"inspect", document.string()}).out);
  EXPECT_EQ(inspected["swift"], snapshot.value->swift);
}

TEST_F(CLITest, ConfigSetAndReset) {
  EXPECT_EQ(nlohmann::json::parse(run({"config"}).out), toJSON(SVGFigurerConfiguration::fresh()));
  EXPECT_FALSE(std::filesystem::exists(config())) << "reading stores nothing";
  ASSERT_EQ(run({"config", "set", "indentUsing", "tabs"}).exitCode, 0);
  const auto shown = nlohmann::json::parse(run({"config"}).out);
  EXPECT_EQ(shown["indentUsing"], "\t");
  EXPECT_TRUE(
      std::filesystem::exists(config() / "net.quivane.devtools" / "DefaultSVGFigurerConfig"));
  EXPECT_EQ(run({"config", "set", "indent", "many"}).exitCode, 2);
  EXPECT_EQ(run({"config", "set", "colour", "1"}).exitCode, 2);
  ASSERT_EQ(run({"config", "reset"}).exitCode, 0);
  EXPECT_EQ(nlohmann::json::parse(run({"config"}).out), toJSON(SVGFigurerConfiguration::fresh()));
}

TEST_F(CLITest, SamplesListAndPrint) {
  const auto list = run({"samples"});
  EXPECT_EQ(list.exitCode, 0);
  std::string names;
  for (const auto& example : exampleSVGs()) names += std::string(example.name) + "\n";
  EXPECT_EQ(list.out, names);
  EXPECT_EQ(run({"samples", "Simple Ellipse"}).out, exampleNamed("Simple Ellipse")->svg);
  EXPECT_EQ(run({"samples", "Nope"}).exitCode, 1);
}

}  // namespace
