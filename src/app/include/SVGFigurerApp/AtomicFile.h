// Writing a whole file so that readers see the old bytes or the new ones, never a part.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace SVGFigurerApp {

// Writes `bytes` to a temporary file beside `path`, flushes it to disk and renames it over
// `path`. Gives the reason on failure, in which case `path` is untouched and the temporary
// file is removed.
std::optional<std::string> writeFileAtomically(const std::filesystem::path& path,
                                               std::string_view bytes);

}  // namespace SVGFigurerApp
