#include "Input.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <iterator>

namespace svgfigurer::cli {

namespace {

bool readAll(std::FILE* file, std::string& out) {
  char buffer[1 << 16];
  std::size_t count;
  while ((count = std::fread(buffer, 1, sizeof buffer, file)) > 0) out.append(buffer, count);
  return !std::ferror(file);
}

}  // namespace

std::optional<InputText> readInput(const std::string& path) {
  InputText input{path.empty() ? "-" : path, {}};
  if (input.name == "-") {
    if (!readAll(stdin, input.text)) {
      std::cerr << "svgfigurer: cannot read standard input: " << std::strerror(errno) << '\n';
      return std::nullopt;
    }
    return input;
  }
  if (auto error = readFileInto(path, input.text)) {
    std::cerr << "svgfigurer: cannot read " << path << ": " << *error << '\n';
    return std::nullopt;
  }
  return input;
}

std::optional<std::string> readFileInto(const std::string& path, std::string& text) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return std::string(std::strerror(errno));
  const bool ok = readAll(file, text);
  const int error = errno;
  std::fclose(file);
  if (!ok) return std::string(std::strerror(error));
  return std::nullopt;
}

}  // namespace svgfigurer::cli
