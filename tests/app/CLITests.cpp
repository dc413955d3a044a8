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
#include "FigurerUtilities/Transcript.h"

using namespace SVGFigurerApp;
using AppTest::circleSVG;
using AppTest::expectedSwift;

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

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

class CLITest : public testing::Test {
 protected:
  AppTest::TemporaryFolder folder;
  std::filesystem::path config() const { return folder.path() / "config"; }
  std::filesystem::path file(const std::string& name, std::string_view contents) const {
    const auto path = folder.path() / name;
    std::filesystem::create_directories(path.parent_path());
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
};

TEST_F(CLITest, ConvertPrintsExactlyTheGeneratedTextAndFlagsOverrideTheStartingSettings) {
  const auto path = file("default.svg", defaultDocumentSVG);
  const auto result = run({"convert", path.string()}, "LOGLEVEL=trace");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, expectedSwift(defaultDocumentSVG, SVGFigurerConfiguration::fresh()));
  EXPECT_NE(result.err.find("rebuilding SVG ..."), std::string::npos) << "logs go to stderr";

  // Each row's flags and the settings, by key, that they stand for.
  using Settings = std::vector<std::pair<std::string, std::string>>;
  const std::pair<std::vector<std::string>, Settings> rows[] = {
      {{"--no-prefix-svg"}, {{"prefixSVG", "false"}}},
      {{"--indent-using", "tabs", "--indent", "1"}, {{"indentUsing", "tabs"}, {"indent", "1"}}},
      {{"--root-view-name", "Dot", "--max-fraction-digits", "1"},
       {{"rootViewName", "Dot"}, {"maximumFractionDigits", "1"}}},
      {{"--no-imports", "--no-preview-provider", "--no-info-comments"},
       {{"imports", "false"}, {"previewProvider", "false"}, {"infoComments", "false"}}},
      {{"--hex-colors", "--indent-empty-lines", "--no-newline-after-close-path"},
       {{"useHexColor", "true"}, {"indentEmptyLines", "true"}, {"newlineAfterClosePath", "false"}}},
      {{"--init-type", "init", "--positioning", "offset"},
       {{"initType", "init"}, {"positioningType", "offset"}}},
  };
  const auto circle = file("c.svg", circleSVG);
  for (auto [arguments, settings] : rows) {
    auto expected = SVGFigurerConfiguration::fresh();
    for (const auto& [key, value] : settings)
      ASSERT_FALSE(setConfigurationValue(expected, key, value));
    arguments.insert(arguments.begin(), "convert");
    arguments.push_back(circle.string());
    const auto flagged = run(arguments);
    EXPECT_EQ(flagged.exitCode, 0) << arguments[1] << flagged.err;
    EXPECT_EQ(flagged.out, expectedSwift(circleSVG, expected)) << arguments[1];
  }
}

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
  EXPECT_NE(corrected.out, asStored.out);
}

TEST_F(CLITest, ExitStatusesAndWhatComesWithThem) {
  file("x.svg", "not svg");
  file("e.svg", " \n");
  file("a.txt", "hello");
  file("bad.json", R"({"indent":1})");
  file("list.txt", file("c.svg", circleSVG).string() + "\n");
  Transcript::expect("app/data/cli-exit-statuses.txt", [&](const std::string& input) {
    std::vector<std::string> arguments;
    std::istringstream words(input);
    for (std::string word; words >> word;) arguments.push_back(word);
    const auto result = run(arguments);
    const auto shown = [](const std::string& text) {
      return text.empty() ? std::string() : " " + Transcript::escape(text);
    };
    return "> exit " + std::to_string(result.exitCode) + "\n> out:" + shown(result.out) +
           "\n> err:" + shown(result.err) + "\n";
  });
  EXPECT_FALSE(std::filesystem::exists(config())) << "refused settings store nothing";
}

// Every file of a folder, by name, with its contents.
std::map<std::string, std::string> folderContents(const std::filesystem::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    files[entry.path().filename().string()] = AppTest::readFile(entry.path());
  }
  return files;
}

// Inputs of every kind a batch meets: equal stems in different folders (and a stem that looks
// like a numbered one), stems that are no Swift names as they stand, text that does not parse, a
// missing file, a document with many report lines, and enough work for several threads.
class BatchTest : public CLITest {
 protected:
  std::vector<std::string> inputs;
  std::string list;

  void SetUp() override {
    std::string many = R"(<svg xmlns="http://www.w3.org/2000/svg">)";
    for (int i = 0; i < 200; ++i) many += "<use/><circle r=\"" + std::to_string(i) + "\"/>";
    many += "</svg>";
    const std::vector<std::pair<std::string, std::string>> files = {
        {"a/icon.svg", circleSVG}, {"b/icon.svg", many},     {"c/icon-2.svg", circleSVG},
        {"broken.svg", "<svg"},    {"d/many.svg", many},     {"e/my-icon_2.svg", circleSVG},
        {"f/icon.svg", circleSVG}, {"g/24px.svg", circleSVG}};
    for (const auto& [name, contents] : files) inputs.push_back(file(name, contents).string());
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
  EXPECT_EQ(names, (std::vector<std::string>{"24px.swift", "icon-2-2.swift", "icon-2.swift",
                                             "icon-3.swift", "icon.swift", "many.swift",
                                             "my-icon_2.swift"}));
  // Each view is named after its file, the way a Swift name may be written.
  auto config = SVGFigurerConfiguration::fresh();
  for (const auto& [name, view] :
       {std::pair{"icon-2-2.swift", "Icon22"}, std::pair{"my-icon_2.swift", "MyIcon2"},
        std::pair{"24px.swift", "Z24px"}}) {
    config.rootViewName = view;
    EXPECT_EQ(files.at(name), expectedSwift(circleSVG, config)) << name;
  }

  // The summary is everything after the last report line: the same for any number of threads.
  const auto summaryOf = [](const std::string& err) {
    return err.substr(err.rfind("svgfigurer: 2 of"));
  };
  EXPECT_EQ(summaryOf(one.err), summaryOf(three.err));
  EXPECT_EQ(summaryOf(one.err),
            "svgfigurer: 2 of 9 inputs failed:\n  " + inputs[3] + "\n  " + inputs[4] + "\n");
  for (const auto* err : {&one.err, &three.err}) {
    const auto lines = linesOf(*err);
    const auto has = [&](const std::string& line) {
      return std::find(lines.begin(), lines.end(), line) != lines.end();
    };
    EXPECT_TRUE(has("svgfigurer: " + inputs[3] + ": could not parse SVG")) << *err;
    EXPECT_TRUE(has("svgfigurer: " + inputs[4] + ": cannot read: No such file or directory"));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "OTHER: use [:]"), 400) << "whole lines only";
  }
  const auto clean = run({"convert", "-o", (folder.path() / "one").string(), inputs[0]});
  EXPECT_EQ(clean.exitCode, 0) << clean.err;
}

TEST_F(BatchTest, TimingsHaveALinePerInputInInputOrder) {
  const auto timings = folder.path() / "timings.tsv";
  EXPECT_EQ(batch("out", "2", {"--timings", timings.string()}).exitCode, 1);
  // The seconds are whatever they were; the rest of each line is known.
  std::vector<std::string> lines, expected;
  for (auto line : linesOf(AppTest::readFile(timings))) {
    const auto seconds = line.find('\t', line.find('\t') + 1) + 1;
    const auto end = line.find('\t', seconds);
    if (line.starts_with("#")) {
      lines.push_back(line.substr(0, line.find('\t')));
      continue;
    }
    EXPECT_GE(std::stod(line.substr(seconds, end - seconds)), 0.0) << line;
    lines.push_back(line.replace(seconds, end - seconds, "S"));
  }
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    const auto bytes = i == 4 ? 0 : std::filesystem::file_size(inputs[i]);
    expected.push_back(inputs[i] + "\t" + std::to_string(bytes) + "\tS\t" +
                       (i == 3   ? "failed: could not parse SVG"
                        : i == 4 ? "failed: cannot read: No such file or directory"
                                 : "ok"));
  }
  expected.insert(expected.end(), {"#jobs", "#wall-seconds", "#cpu-seconds", "#peak-rss-kb"});
  EXPECT_EQ(lines, expected);
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

TEST_F(CLITest, NewSavesADocumentThatInspectReadsBack) {
  const auto path = file("c.svg", circleSVG);
  const auto inspected = nlohmann::json::parse(run({"inspect", path.string()}).out);
  EXPECT_EQ(inspected["svg"], circleSVG);
  EXPECT_EQ(inspected["edited"], true);
  EXPECT_EQ(inspected["rebuildFailed"], false);
  EXPECT_EQ(inspected["generatedSwift"],
            expectedSwift(circleSVG, SVGFigurerConfiguration::fresh()));

  const auto document = folder.path() / "c.svgfigurer";
  ASSERT_EQ(run({"new", path.string(), "-o", document.string()}).exitCode, 0);
  const auto snapshot = decodeSnapshot(AppTest::readFile(document));
  ASSERT_TRUE(snapshot) << snapshot.error;
  EXPECT_EQ(snapshot.value->svg, circleSVG);
  EXPECT_EQ(snapshot.value->config, SVGFigurerConfiguration::fresh());
  EXPECT_EQ(nlohmann::json::parse(run({"inspect", document.string()}).out)["swift"],
            snapshot.value->swift);
}

TEST_F(CLITest, ConfigSetAndResetAndSamples) {
  EXPECT_EQ(nlohmann::json::parse(run({"config"}).out), toJSON(SVGFigurerConfiguration::fresh()));
  EXPECT_FALSE(std::filesystem::exists(config())) << "reading stores nothing";
  ASSERT_EQ(run({"config", "set", "indentUsing", "tabs"}).exitCode, 0);
  EXPECT_EQ(nlohmann::json::parse(run({"config"}).out)["indentUsing"], "\t");
  EXPECT_TRUE(
      std::filesystem::exists(config() / "net.quivane.devtools" / "DefaultSVGFigurerConfig"));
  ASSERT_EQ(run({"config", "reset"}).exitCode, 0);
  EXPECT_EQ(nlohmann::json::parse(run({"config"}).out), toJSON(SVGFigurerConfiguration::fresh()));

  std::string names;
  for (const auto& example : exampleSVGs()) names += std::string(example.name) + "\n";
  EXPECT_EQ(run({"samples"}).out, names);
  EXPECT_EQ(run({"samples", "Simple Ellipse"}).out, exampleNamed("Simple Ellipse")->svg);
}

}  // namespace
