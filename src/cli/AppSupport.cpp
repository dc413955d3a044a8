#include "AppSupport.h"

#include <CLI/CLI.hpp>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <cstdio>
#include <iostream>
#include <memory>

namespace svgfigurer::cli {

CoreS::Logger& stderrLogger() {
  static CoreS::Console2 console(std::make_unique<CoreS::FileOutputStream>(stderr),
                                 std::make_unique<CoreS::FileOutputStream>(stderr),
                                 CoreS::defaultLogLevel());
  return console;
}

const SVGParser::Report& stderrReport() {
  static const SVGParser::Report report([](std::string_view line) { std::cerr << line << '\n'; });
  return report;
}

SVGFigurerApp::ConfigurationDefaults& persistedDefaults() {
  static SVGFigurerApp::ConfigurationDefaults defaults(
      SVGFigurerApp::DefaultsStore::forSuite(SVGFigurerApp::defaultsSuiteName), stderrLogger(),
      stderrReport());
  return defaults;
}

SVGFigurerApp::DocumentEnvironment commandEnvironment() {
  static SVGFigurerApp::PendingDocumentQueue queue;
  return {&stderrLogger(), &persistedDefaults(), &queue, stderrReport()};
}

std::unique_ptr<SVGFigurerApp::SVGFigurerDocument> openDocument(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) {
    printError("cannot read " + path + ": " + std::strerror(ENOENT));
    throw CLI::RuntimeError(2);
  }
  auto opened = SVGFigurerApp::SVGFigurerDocument::open(
      SVGFigurerApp::FileReadRequest::fromPath(path), commandEnvironment());
  if (auto* failure = std::get_if<SVGFigurerApp::FileReadError>(&opened)) {
    printError("cannot open " + path + ": " + failure->message);
    throw CLI::RuntimeError(1);
  }
  return std::move(std::get<std::unique_ptr<SVGFigurerApp::SVGFigurerDocument>>(opened));
}

void printError(const std::string& message) {
  std::cerr << "svgfigurer: " << message << '\n';
}

}  // namespace svgfigurer::cli
