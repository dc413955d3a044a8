#include "SVGFigurerApp/DocumentFile.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <system_error>

#include "SVGFigurerApp/Generation.h"
#include "UnicodeText.h"

namespace SVGFigurerApp {

ContentType contentTypeForPath(const std::filesystem::path& path) {
  std::string extension = path.extension().string();
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  if (extension == ".svgfigurer") return ContentType::document;
  if (extension == ".svg") return ContentType::svg;
  if (extension == ".swift") return ContentType::swiftSource;
  return ContentType::other;
}

std::string_view contentTypeIdentifier(ContentType type) {
  switch (type) {
    case ContentType::document:
      return documentTypeIdentifier;
    case ContentType::svg:
      return "public.svg-image";
    case ContentType::swiftSource:
      return "public.swift-source";
    case ContentType::other:
      break;
  }
  return "public.data";
}

std::string FileReadRequest::description() const {
  std::string text = "<FileReadRequest type: ";
  text += contentTypeIdentifier(contentType);
  text += ", file: ";
  text += fileName.value_or("<nil>");
  text += contents ? ", " + std::to_string(contents->size()) + " bytes>" : ", no contents>";
  return text;
}

FileReadRequest FileReadRequest::fromPath(const std::filesystem::path& path) {
  FileReadRequest request;
  request.fileName = path.filename().string();
  request.contentType = contentTypeForPath(path);
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return request;
  std::ifstream in(path, std::ios::binary);
  if (!in) return request;
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (!in.bad()) request.contents = std::move(bytes);
  return request;
}

std::variant<Snapshot, FileReadError> readSnapshot(const FileReadRequest& request,
                                                   const SVGFigurerConfiguration& config,
                                                   CoreS::Logger& log,
                                                   const SVGParser::Report& report) {
  const FileReadError corrupt{FileReadError::Kind::corruptFile, std::string(corruptFileMessage)};
  if (!request.contents) {
    log.error("could not access file data:", request);
    return corrupt;
  }
  const std::string& bytes = *request.contents;
  switch (request.contentType) {
    case ContentType::document: {
      auto decoded = decodeSnapshot(bytes, report);
      if (!decoded) return FileReadError{FileReadError::Kind::decoding, decoded.error};
      return std::move(*decoded.value);
    }
    case ContentType::svg:
      if (!isValidUTF8(bytes)) return corrupt;
      return makeSnapshot(bytes, request.fileName, config, report);
    case ContentType::swiftSource:
      if (!isValidUTF8(bytes)) return corrupt;
      return Snapshot{std::string(noSVGText), bytes, std::nullopt};
    case ContentType::other:
      break;
  }
  const std::string size = "size: #" + std::to_string(bytes.size()) + " bytes";
  log.error("unexpected file type:", contentTypeIdentifier(request.contentType), size,
            request.fileName);
  return corrupt;
}

}  // namespace SVGFigurerApp
