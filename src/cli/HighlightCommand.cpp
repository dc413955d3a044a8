// `svgfigurer highlight [--language NAME] [--theme light|classic|dark]
//  [--format ansi|html|runs|plain] [FILE|-]`: colours source text with highlight.js.
#include <unistd.h>

#include <QCoreApplication>
#include <iostream>
#include <map>
#include <memory>

#include "Commands.h"
#include "Highlight/HighlightJS.h"
#include "Highlight/Rendering.h"
#include "Highlighting.h"
#include "Input.h"

namespace svgfigurer::cli {

namespace {

struct HighlightOptions {
  std::string path = "-";
  std::string language;
  std::string theme = "light";
  std::string format;  // empty: ANSI on a terminal, the plain text otherwise
};

std::shared_ptr<const Highlight::HighlightJSTheme> themeNamed(const std::string& name) {
  if (name == "dark") return Highlight::HighlightJSTheme::dark();
  if (name == "classic") return Highlight::HighlightJSTheme::classic();
  return Highlight::HighlightJSTheme::light();
}

std::string render(const Highlight::StyledText& text, const std::string& format,
                   const std::string& theme) {
  if (format == "ansi") return Highlight::renderANSI(text);
  if (format == "html") {
    // The dark theme's text colour is meant for a dark page.
    return Highlight::renderHTML(text, theme == "dark"
                                           ? std::optional(Highlight::RGBColor::fromHex(0x1E1E1E))
                                           : std::nullopt);
  }
  if (format == "runs") return Highlight::renderRunsJSON(text);
  return Highlight::renderPlain(text);
}

// The script engine needs an application object; the commands have no event loop of their own.
std::unique_ptr<QCoreApplication> makeApplication() {
  static int argc = 1;
  static char name[] = "svgfigurer";
  static char* argv[] = {name, nullptr};
  if (QCoreApplication::instance()) return nullptr;
  return std::make_unique<QCoreApplication>(argc, argv);
}

void runHighlight(const HighlightOptions& options) {
  auto input = readInput(options.path);
  if (!input) throw CLI::RuntimeError(2);
  const std::string format = !options.format.empty() ? options.format
                             : isatty(STDOUT_FILENO) ? "ansi"
                                                     : "plain";
  const Highlight::StyledText plain(Highlight::fromUTF8(input->text), {});

  const auto app = makeApplication();
  auto highlighter =
      Highlight::HighlightJS::load({std::nullopt, nullptr, Highlight::inlineExecutor()});
  if (!highlighter) {
    std::cout << render(plain, format, options.theme);
    std::cerr << "svgfigurer: highlighting is not available\n";
    throw CLI::RuntimeError(1);
  }
  if (plain.empty()) return;
  std::optional<std::string> language;
  if (!options.language.empty()) language = options.language;
  auto styled = highlighter->highlightAndWait(plain.text(), language, themeNamed(options.theme));
  if (!styled) {
    std::cout << render(plain, format, options.theme);
    std::cerr << "svgfigurer: could not highlight " << input->name
              << (language ? " as " + *language : std::string()) << '\n';
    throw CLI::RuntimeError(1);
  }
  std::cout << render(*styled, format, options.theme);
}

}  // namespace

std::optional<std::string> highlightForTerminal(const std::string& text, const std::string& language,
                                                const std::string& theme) {
  const auto app = makeApplication();
  auto highlighter =
      Highlight::HighlightJS::load({std::nullopt, nullptr, Highlight::inlineExecutor()});
  if (!highlighter) return std::nullopt;
  std::optional<std::string> name;
  if (!language.empty()) name = language;
  auto styled = highlighter->highlightAndWait(Highlight::fromUTF8(text), name, themeNamed(theme));
  if (!styled) return std::nullopt;
  return Highlight::renderANSI(*styled);
}

void addHighlightCommand(CLI::App& app) {
  auto* command = app.add_subcommand("highlight", "Colour source text with highlight.js");
  auto options = std::make_shared<HighlightOptions>();
  command->add_option("--language", options->language,
                      "highlight.js language name or alias; detected when not given");
  command->add_option("--theme", options->theme, "Colour theme")
      ->check(CLI::IsMember({"light", "classic", "dark"}))
      ->capture_default_str();
  command
      ->add_option("--format", options->format,
                   "Output: ansi (default on a terminal), html, runs (JSON) or plain")
      ->check(CLI::IsMember({"ansi", "html", "runs", "plain"}));
  command->add_option("file", options->path, "File to highlight, or - for standard input")
      ->capture_default_str();
  command->callback([options] { runHighlight(*options); });
}

}  // namespace svgfigurer::cli
