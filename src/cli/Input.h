// Reading the command's input text from a file or from standard input.
#pragma once

#include <optional>
#include <string>

namespace svgfigurer::cli {

struct InputText {
  std::string name;  // the file name as given, or "-" for standard input
  std::string text;
};

// Reads FILE, or standard input for "-" or an empty name. Prints
// "svgfigurer: cannot read <file>: <reason>" on standard error and gives nothing on failure.
std::optional<InputText> readInput(const std::string& path);

// Appends the whole of FILE to `text`; gives the reason when it cannot be read.
std::optional<std::string> readFileInto(const std::string& path, std::string& text);

}  // namespace svgfigurer::cli
