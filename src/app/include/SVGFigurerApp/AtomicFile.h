// Writing a whole file so that readers see the old bytes or the new ones, never a part.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace SVGFigurerApp {

// Whether the bytes reach the disk before the rename. Readers see the old file or the new one
// either way; `deferred` leaves durability to the caller (one sync after many files, instead
// of a disk flush per file).
enum class FlushToDisk { beforeRename, deferred };

// Writes `bytes` to a temporary file beside `path`, flushes it to disk and renames it over
// `path`. Gives the reason on failure, in which case `path` is untouched and the temporary
// file is removed.
std::optional<std::string> writeFileAtomically(const std::filesystem::path& path,
                                               std::string_view bytes,
                                               FlushToDisk flush = FlushToDisk::beforeRename);

}  // namespace SVGFigurerApp
