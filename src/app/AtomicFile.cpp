#include "SVGFigurerApp/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace SVGFigurerApp {

namespace {

std::string reason(const std::string& what, int error) {
  return what + ": " + std::strerror(error);
}

bool writeAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(fd, bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

std::optional<std::string> writeFileAtomically(const std::filesystem::path& path,
                                               std::string_view bytes, FlushToDisk flush) {
  // A device or a pipe (/dev/null, /dev/stdout, a FIFO) is written to, never replaced: the
  // rename would put a plain file where the device node was.
  struct stat target {};
  const bool exists = ::stat(path.c_str(), &target) == 0;
  if (exists && !S_ISREG(target.st_mode) && !S_ISDIR(target.st_mode)) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
    if (fd < 0) return reason("cannot open " + path.string(), errno);
    const bool written = writeAll(fd, bytes);
    const int error = errno;
    ::close(fd);
    if (!written) return reason("cannot write " + path.string(), error);
    return std::nullopt;
  }
  // mkstemp keeps the temporary name unique among concurrent writers of the same target.
  std::string pattern = path.string() + ".tmp-XXXXXX";
  std::vector<char> name(pattern.begin(), pattern.end());
  name.push_back('\0');
  const int fd = ::mkstemp(name.data());
  if (fd < 0) return reason("cannot create a temporary file for " + path.string(), errno);
  const std::string temporary(name.data());

  auto fail = [&](const std::string& what) {
    const int error = errno;
    ::close(fd);
    ::unlink(temporary.c_str());
    return reason(what, error);
  };
  if (!writeAll(fd, bytes)) return fail("cannot write " + temporary);
  if (flush == FlushToDisk::beforeRename && ::fsync(fd) != 0) {
    return fail("cannot flush " + temporary);
  }
  // mkstemp creates the file readable by its owner only: keep the mode of the file being
  // replaced, or give a new file the usual one.
  ::fchmod(fd, exists ? (target.st_mode & 07777) : 0644);
  if (::close(fd) != 0) {
    const int error = errno;
    ::unlink(temporary.c_str());
    return reason("cannot close " + temporary, error);
  }
  if (::rename(temporary.c_str(), path.c_str()) != 0) {
    const int error = errno;
    ::unlink(temporary.c_str());
    return reason("cannot replace " + path.string(), error);
  }
  return std::nullopt;
}

}  // namespace SVGFigurerApp
