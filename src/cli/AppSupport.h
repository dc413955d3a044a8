// What the document-level commands share: a logger and a report sink that write to standard
// error only, so that standard output carries nothing but the result, and the persisted
// default settings read through them.
#pragma once

#include <memory>
#include <string>

#include "CoreS/Logger.h"
#include "SVGFigurerApp/ConfigurationDefaults.h"
#include "SVGFigurerApp/SVGFigurerDocument.h"
#include "SVGParser/Report.h"

namespace svgfigurer::cli {

CoreS::Logger& stderrLogger();
const SVGParser::Report& stderrReport();
SVGFigurerApp::ConfigurationDefaults& persistedDefaults();
// The shared logger, defaults and report, with a queue of this command's own.
SVGFigurerApp::DocumentEnvironment commandEnvironment();

// Opens a file as the document framework would, its kind decided by its extension. A file
// that does not exist ends the command with exit code 2, one that does not open with 1.
std::unique_ptr<SVGFigurerApp::SVGFigurerDocument> openDocument(const std::string& path);

// Prints "svgfigurer: <message>" on standard error.
void printError(const std::string& message);

}  // namespace svgfigurer::cli
