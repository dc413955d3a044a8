// What a document is on disk and which files it opens from. The kind of a file is decided by
// its extension: ".svgfigurer" is a document, ".svg" is SVG, ".swift" is source text.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "CoreS/Logger.h"
#include "SVGFigurerApp/Snapshot.h"
#include "SVGParser/Report.h"

namespace SVGFigurerApp {

enum class ContentType { document, svg, swiftSource, other };

inline constexpr std::string_view documentTypeIdentifier = "net.quivane.figurer.svg.doc";
inline constexpr std::string_view documentExtension = "svgfigurer";

// By extension, ignoring letter case.
ContentType contentTypeForPath(const std::filesystem::path& path);
// The identifier a log line names: the document type, "public.svg-image",
// "public.swift-source", or "public.data".
std::string_view contentTypeIdentifier(ContentType type);

// A request to read one file: its regular-file contents (none for a folder or an unreadable
// file), its name, and the type it is to be read as.
struct FileReadRequest {
  std::optional<std::string> contents;
  std::optional<std::string> fileName;
  ContentType contentType = ContentType::other;

  bool operator==(const FileReadRequest&) const = default;
  std::string description() const;
  // Reads `path` from disk, its type decided by its extension.
  static FileReadRequest fromPath(const std::filesystem::path& path);
};

struct FileReadError {
  enum class Kind {
    corruptFile,  // no contents, text that is not UTF-8, or a type that cannot be read
    decoding,     // a document file whose JSON does not decode
  };
  Kind kind = Kind::corruptFile;
  std::string message;
  bool operator==(const FileReadError&) const = default;
};

inline constexpr std::string_view corruptFileMessage =
    "The file couldn't be opened because it isn't in the correct format.";
inline constexpr std::string_view noSVGText = "<!-- No SVG -->";

// Steps 1 to 5 of opening a file: the snapshot the document will be built from. An SVG file
// goes through `makeSnapshot` with `config`; a source file gets the SVG "<!-- No SVG -->".
std::variant<Snapshot, FileReadError> readSnapshot(const FileReadRequest& request,
                                                   const SVGFigurerConfiguration& config,
                                                   CoreS::Logger& log,
                                                   const SVGParser::Report& report = {});

}  // namespace SVGFigurerApp
