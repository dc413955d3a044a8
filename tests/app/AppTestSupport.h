// Shared pieces of the document tests: a logger that records its lines, a temporary folder, an
// environment wired to both so that no test touches the user's settings, and a controller that
// opens documents the way the window manager does.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "CoreS/Logger.h"
#include "SVGFigurerApp/DocumentController.h"
#include "SVGFigurerApp/SVGFigurerApp.h"

namespace AppTest {

inline const std::string circleSVG =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><circle r="5"/></svg>)";

struct LogLine {
  CoreS::LogLevel level;
  std::string text;  // the message and its values, joined by blanks
};

class RecordingLogger final : public CoreS::Logger {
 public:
  std::vector<LogLine> lines;

  CoreS::LogLevel logLevel() const override { return CoreS::LogLevel::trace; }
  std::string description() const override { return "RecordingLogger"; }
  void primaryLog(CoreS::LogLevel level, CoreS::MessageProducer message,
                  std::span<const CoreS::LogValue> values) override {
    std::string text = message();
    for (const auto& value : values) {
      text += ' ';
      value.appendTo(text);
    }
    lines.push_back({level, std::move(text)});
  }
  bool contains(CoreS::LogLevel level, std::string_view prefix) const {
    for (const auto& line : lines) {
      if (line.level == level && line.text.starts_with(prefix)) return true;
    }
    return false;
  }
  std::size_t count(std::string_view prefix) const {
    std::size_t n = 0;
    for (const auto& line : lines) n += line.text.starts_with(prefix) ? 1 : 0;
    return n;
  }
};

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "svgfigurer-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) != nullptr) path_ = pattern;
  }
  ~TemporaryFolder() {
    std::error_code error;
    if (!path_.empty()) std::filesystem::remove_all(path_, error);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::string readFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void writeFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
}

// A document environment over a store in a temporary folder.
struct Fixture {
  TemporaryFolder folder;
  RecordingLogger log;
  std::vector<std::string> reportLines;
  SVGFigurerApp::ConfigurationDefaults defaults{
      SVGFigurerApp::DefaultsStore(folder.path() / "net.quivane.devtools"), log};
  SVGFigurerApp::PendingDocumentQueue pending;

  SVGFigurerApp::DocumentEnvironment environment() {
    return {&log, &defaults, &pending,
            SVGParser::Report([this](std::string_view line) { reportLines.emplace_back(line); })};
  }
  SVGFigurerApp::DefaultsStore& store() { return defaults.store(); }
};

// The whole-text generation, as the reference for what every other path must produce.
inline std::string expectedSwift(std::string_view svg,
                                 const SVGFigurerApp::SVGFigurerConfiguration& config) {
  RecordingLogger log;
  return SVGFigurerApp::generateSwift(svg, config, log).text;
}

// Opens documents as the window manager does: the new document takes the front pending record.
struct FakeController final : SVGFigurerApp::DocumentController {
  explicit FakeController(SVGFigurerApp::PendingDocumentQueue& queue) : queue(&queue) {}
  std::optional<std::string> openUntitledDocument() override {
    if (failWith) return failWith;
    opened.push_back(queue->takeFront().value_or(SVGFigurerApp::Snapshot{}));
    return std::nullopt;
  }
  SVGFigurerApp::PendingDocumentQueue* queue;
  std::optional<std::string> failWith;
  std::vector<SVGFigurerApp::Snapshot> opened;
};

}  // namespace AppTest
