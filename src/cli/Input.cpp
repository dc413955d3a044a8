#include "Input.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

// Straight into the text, sized from the file's own size: no copy through a buffer and no
// spare capacity held through the conversion. The size is only a hint; reading goes on to
// the end whatever it says.
std::optional<std::string> readFileInto(const std::string& path, std::string& text) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return std::string(std::strerror(errno));
  struct stat status {};
  std::size_t size = 0;
  if (::fstat(fd, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0) {
    size = static_cast<std::size_t>(status.st_size);
  }
  text.clear();
  text.resize(size + 1);  // one byte more, so that a file of the size read ends in one call
  std::size_t length = 0;
  int error = 0;
  for (;;) {
    if (length == text.size()) text.resize(text.size() * 2 + 4096);
    const ssize_t count = ::read(fd, text.data() + length, text.size() - length);
    if (count < 0) {
      if (errno == EINTR) continue;
      error = errno;
      break;
    }
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
  }
  ::close(fd);
  text.resize(length);
  if (error != 0) return std::string(std::strerror(error));
  return std::nullopt;
}

}  // namespace svgfigurer::cli
