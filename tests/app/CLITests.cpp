// The document commands of `svgfigurer`, run as a user runs them: a separate process with its
// own configuration folder, standard output and standard error kept apart.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
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

  Outcome run(const std::vector<std::string>& arguments, const std::string& environment = "",
              const std::string& standardInput = "/dev/null") {
    std::string command = "cd " + quoted(folder.path().string()) +
                          " && XDG_CONFIG_HOME=" + quoted(config().string()) + " " + environment +
                          " " + quoted(SVGFIGURER_CLI);
    for (const auto& argument : arguments) command += " " + quoted(argument);
    const auto errPath = folder.path() / "stderr.txt";
    command += " <" + quoted(standardInput) + " 2>" + quoted(errPath.string());
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

// An arc with a rotated ellipse, an unknown colour name and a "*/" for the header comment.
const std::string defectiveSVG =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><!-- */ -->)"
    R"(<path d="M0 0A10 5 30 0 1 20 0" fill="qwe"/></svg>)";

TEST_F(CLITest, CompilableSwiftCorrectsWhatTheNoteNames) {
  const auto path = file("d.svg", defectiveSVG);
  const auto asStored = run({"convert", "--fresh", path.string()});
  EXPECT_EQ(asStored.exitCode, 0);
  EXPECT_EQ(asStored.out, expectedSwift(defectiveSVG, SVGFigurerConfiguration::fresh()));
  EXPECT_EQ(asStored.err,
            "NOTE: the generated Swift does not compile as written (arc transform, rotation step, "
            "unknown colour name, comment mark in the SVG header); turn on compilableSwift "
            "(--compilable-swift) to correct it\n");
  auto compilable = SVGFigurerConfiguration::fresh();
  compilable.compilableSwift = true;
  const auto corrected = run({"convert", "--fresh", "--compilable-swift", path.string()});
  EXPECT_EQ(corrected.exitCode, 0);
  EXPECT_EQ(corrected.out, expectedSwift(defectiveSVG, compilable));
  EXPECT_EQ(corrected.err, "");
  for (const char* text : {"Angle(radians: 3.1416), transform: ", ".rotated(by: 0.5236)",
                           "Color.clear /*unknown: qwe */", "<!-- * / -->"}) {
    EXPECT_NE(corrected.out.find(text), std::string::npos) << text;
  }
}

struct UsageRow {
  const char* name;
  std::vector<std::string> arguments;
  const char* message;
};

class UsageErrors : public CLITest, public testing::WithParamInterface<UsageRow> {};

TEST_P(UsageErrors, ExitTwoWithTheReasonAndAPointerToHelp) {
  const auto result = run(GetParam().arguments);
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_NE(result.err.find(GetParam().message), std::string::npos) << result.err;
  EXPECT_NE(result.err.find("--help"), std::string::npos) << result.err;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UsageErrors,
    testing::Values(UsageRow{"BadInteger", {"convert", "--indent", "abc"}, "--indent"},
                    UsageRow{"UnknownOption", {"convert", "--bogus"}, "--bogus"},
                    UsageRow{"BadEnumValue", {"convert", "--indent-using", "weird"}, "weird"},
                    UsageRow{"UnknownSubcommand", {"bogus"}, "subcommand"},
                    UsageRow{"NoSubcommand", {}, "subcommand"}),
    [](const auto& info) { return std::string(info.param.name); });

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

// Every file of a folder, by name, with its contents.
std::map<std::string, std::string> folderContents(const std::filesystem::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    files[entry.path().filename().string()] = AppTest::readFile(entry.path());
  }
  return files;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

// Inputs of every kind a batch meets: equal stems in different folders (and a stem that looks
// like a numbered one), text that does not parse, a missing file, a document with many report
// lines, and enough work for several threads.
class BatchTest : public CLITest {
 protected:
  std::vector<std::string> inputs;
  std::string list;

  void SetUp() override {
    std::string many = R"(<svg xmlns="http://www.w3.org/2000/svg">)";
    for (int i = 0; i < 200; ++i) many += "<use/><circle r=\"" + std::to_string(i) + "\"/>";
    many += "</svg>";
    const std::vector<std::pair<std::string, std::string>> files = {
        {"a/icon.svg", circleSVG}, {"b/icon.svg", many}, {"c/icon-2.svg", circleSVG},
        {"broken.svg", "<svg"},    {"d/many.svg", many}, {"e/dot.svg", circleSVG},
        {"f/icon.svg", circleSVG}};
    for (const auto& [name, contents] : files) {
      std::filesystem::create_directories((folder.path() / name).parent_path());
      inputs.push_back(file(name, contents).string());
    }
    inputs.insert(inputs.begin() + 4, (folder.path() / "missing.svg").string());
    for (const auto& input : inputs) list += input + "\n";
  }

  Outcome batch(const std::string& out, const std::string& jobs,
                std::vector<std::string> extra = {}) {
    const auto listFile = file("list-" + out + ".txt", list);
    std::vector<std::string> arguments = {
        "convert",      "--fresh", "-o", (folder.path() / out).string(),
        "--files-from", "-",       "-j", jobs};
    arguments.insert(arguments.end(), extra.begin(), extra.end());
    return run(arguments, "", listFile.string());
  }
};

TEST_F(BatchTest, ThreadsChangeNeitherTheFilesNorTheSummary) {
  const auto one = batch("one", "1");
  const auto three = batch("three", "3");
  EXPECT_EQ(one.exitCode, 1);
  EXPECT_EQ(three.exitCode, 1);
  EXPECT_EQ(one.out + three.out, "");
  const auto files = folderContents(folder.path() / "one");
  EXPECT_EQ(files, folderContents(folder.path() / "three"));

  std::vector<std::string> names;
  for (const auto& [name, contents] : files) names.push_back(name);
  EXPECT_EQ(names, (std::vector<std::string>{"dot.swift", "icon-2-2.swift", "icon-2.swift",
                                             "icon-3.swift", "icon.swift", "many.swift"}));
  auto config = SVGFigurerConfiguration::fresh();
  config.rootViewName = "Icon22";
  EXPECT_EQ(files.at("icon-2-2.swift"), expectedSwift(circleSVG, config))
      << "a later input named like a numbered stem gets the next free name, and its view too";

  // The summary is everything after the last report line: the same for any number of threads.
  const auto summaryOf = [](const std::string& err) {
    return err.substr(err.rfind("svgfigurer: 2 of"));
  };
  EXPECT_EQ(summaryOf(one.err), summaryOf(three.err));
  EXPECT_EQ(summaryOf(one.err),
            "svgfigurer: 2 of 8 inputs failed:\n  " + inputs[3] + "\n  " + inputs[4] + "\n");
  for (const auto* err : {&one.err, &three.err}) {
    const auto lines = linesOf(*err);
    const auto has = [&](const std::string& line) {
      return std::find(lines.begin(), lines.end(), line) != lines.end();
    };
    EXPECT_TRUE(has("svgfigurer: " + inputs[3] + ": could not parse SVG")) << *err;
    EXPECT_TRUE(has("svgfigurer: " + inputs[4] + ": cannot read: No such file or directory"));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "OTHER: use [:]"), 400) << "whole lines only";
  }
}

TEST_F(BatchTest, TimingsHaveALinePerInputInInputOrder) {
  const auto timings = folder.path() / "timings.tsv";
  const auto result = batch("out", "2", {"--timings", timings.string()});
  EXPECT_EQ(result.exitCode, 1);
  const auto lines = linesOf(AppTest::readFile(timings));
  ASSERT_GE(lines.size(), inputs.size());
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    std::vector<std::string> fields;
    std::stringstream row(lines[i]);
    for (std::string field; std::getline(row, field, '\t');) fields.push_back(field);
    ASSERT_EQ(fields.size(), 4u) << lines[i];
    EXPECT_EQ(fields[0], inputs[i]);
    const auto bytes = i == 4 ? 0 : std::filesystem::file_size(inputs[i]);
    EXPECT_EQ(fields[1], std::to_string(bytes));
    EXPECT_GE(std::stod(fields[2]), 0.0);
    const char* status = i == 3   ? "failed: could not parse SVG"
                         : i == 4 ? "failed: cannot read: No such file or directory"
                                  : "ok";
    EXPECT_EQ(fields[3], status);
  }
  std::vector<std::string> keys;
  for (std::size_t i = inputs.size(); i < lines.size(); ++i) {
    keys.push_back(lines[i].substr(0, lines[i].find('\t')));
  }
  EXPECT_EQ(keys,
            (std::vector<std::string>{"#jobs", "#wall-seconds", "#cpu-seconds", "#peak-rss-kb"}));
}

TEST_F(CLITest, BatchEndsWithStatus124WhenAFileTakesTooLong) {
  std::string big = R"(<svg xmlns="http://www.w3.org/2000/svg">)";
  for (int i = 0; i < 20000; ++i) big += R"(<path d="M1 2 C3 4 5 6 7 8 S9 10 11 12z"/>)";
  big += "</svg>";
  const auto path = file("big.svg", big).string();
  const auto timings = folder.path() / "t.tsv";
  const auto result = run({"convert", "-o", (folder.path() / "out").string(), "--timeout", "0.001",
                           "--timings", timings.string(), path});
  EXPECT_EQ(result.exitCode, 124);
  EXPECT_NE(result.err.find("svgfigurer: " + path + ": took longer than 0.001 s\n"),
            std::string::npos)
      << result.err;
  EXPECT_EQ(AppTest::readFile(timings).rfind(path + "\t" + std::to_string(big.size()) + "\t", 0),
            0u);
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "out" / "big.swift"));
}

TEST_F(CLITest, FilesFromNeedsAnOutputFolder) {
  const auto list = file("list.txt", file("c.svg", circleSVG).string() + "\n");
  EXPECT_EQ(run({"convert", "--files-from", list.string()}).exitCode, 2);
  EXPECT_EQ(run({"convert", "-o", "out", "--files-from", "absent.txt"}).exitCode, 2);
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
