#include "SVGFigurerApp/ConversionService.h"

#include <cctype>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <system_error>

#include "SVGFigurerApp/ConfigurationDefaults.h"
#include "SVGFigurerApp/DocumentFile.h"
#include "SVGFigurerApp/Generation.h"
#include "SVGFigurerApp/PendingDocumentQueue.h"
#include "UnicodeText.h"

namespace SVGFigurerApp {

std::string ServiceError::qualifiedName() const {
  return std::string(serviceErrorDomain) + "." + name;
}

std::string ServiceError::message() const {
  return localizedDescription + " (" + std::to_string(code) + ")";
}

// The codes are the numbers the entry points pass in, negated.
ServiceError ServiceError::openSVGMissingText() {
  return {-32423, "MissingSVGText", "Missing SVG text?"};
}
ServiceError ServiceError::couldNotCreateDocument() {
  return {-32424, "CouldNotCreateDocument", "Could not create new document?"};
}
ServiceError ServiceError::svgToViewMissingText() {
  return {-22423, "MissingSVGText", "Missing SVG text?"};
}
ServiceError ServiceError::invalidSVG() {
  return {-22425, "InvalidSVG", "Invalid SVG?"};
}

namespace {

int hexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool startsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  if (text.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(text[i])) != prefix[i]) return false;
  }
  return true;
}

void appendUTF8(std::string& out, std::uint32_t scalar) {
  if (scalar < 0x80) {
    out += static_cast<char>(scalar);
  } else if (scalar < 0x800) {
    out += static_cast<char>(0xC0 | (scalar >> 6));
    out += static_cast<char>(0x80 | (scalar & 0x3F));
  } else if (scalar < 0x10000) {
    out += static_cast<char>(0xE0 | (scalar >> 12));
    out += static_cast<char>(0x80 | ((scalar >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (scalar & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (scalar >> 18));
    out += static_cast<char>(0x80 | ((scalar >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((scalar >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (scalar & 0x3F));
  }
}

std::optional<std::string> decodeUTF16(std::string_view bytes, bool bigEndian) {
  if (bytes.size() % 2 != 0) return std::nullopt;
  auto unit = [&](std::size_t i) -> std::uint32_t {
    const auto a = static_cast<unsigned char>(bytes[i]);
    const auto b = static_cast<unsigned char>(bytes[i + 1]);
    return bigEndian ? (a << 8 | b) : (b << 8 | a);
  };
  std::string out;
  out.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    std::uint32_t first = unit(i);
    if (first >= 0xDC00 && first <= 0xDFFF) return std::nullopt;
    if (first >= 0xD800 && first <= 0xDBFF) {
      if (i + 2 >= bytes.size()) return std::nullopt;
      const std::uint32_t second = unit(i + 2);
      if (second < 0xDC00 || second > 0xDFFF) return std::nullopt;
      first = 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
      i += 2;
    }
    appendUTF8(out, first);
  }
  return out;
}

// Text as a file's bytes say it is: a byte order mark decides, and without one the bytes
// must be UTF-8. Guessing at legacy encodings would turn a binary file into a document.
std::optional<std::string> decodeFileText(std::string bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF"))
    bytes.erase(0, 3);
  else if (bytes.starts_with("\xFF\xFE"))
    return decodeUTF16(std::string_view(bytes).substr(2), false);
  else if (bytes.starts_with("\xFE\xFF"))
    return decodeUTF16(std::string_view(bytes).substr(2), true);
  if (!isValidUTF8(bytes)) return std::nullopt;
  return bytes;
}

std::string listDescription(const std::vector<std::string>& addresses) {
  std::string text = "[";
  for (std::size_t i = 0; i < addresses.size(); ++i) {
    if (i > 0) text += ", ";
    text += addresses[i];
  }
  return text + "]";
}

}  // namespace

std::optional<std::filesystem::path> localPathForAddress(std::string_view address) {
  if (!startsWithIgnoringCase(address, "file:")) return std::nullopt;
  std::string_view rest = address.substr(5);
  if (rest.starts_with("//")) {
    rest.remove_prefix(2);
    const auto slash = rest.find('/');
    if (slash == std::string_view::npos) return std::nullopt;
    const std::string_view host = rest.substr(0, slash);
    if (!host.empty() && !startsWithIgnoringCase(host, "localhost")) return std::nullopt;
    rest.remove_prefix(slash);
  }
  if (!rest.starts_with('/')) return std::nullopt;
  std::string path;
  for (std::size_t i = 0; i < rest.size(); ++i) {
    if (rest[i] == '?' || rest[i] == '#') break;
    if (rest[i] == '%' && i + 2 < rest.size() && hexValue(rest[i + 1]) >= 0 &&
        hexValue(rest[i + 2]) >= 0) {
      path += static_cast<char>(hexValue(rest[i + 1]) * 16 + hexValue(rest[i + 2]));
      i += 2;
    } else {
      path += rest[i];
    }
  }
  if (path.find('\0') != std::string::npos) return std::nullopt;
  return std::filesystem::path(path);
}

std::string addressForLocalPath(const std::filesystem::path& path) {
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string address = "file://";
  for (const char c : path.string()) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain = std::isalnum(byte) != 0 ||
                       std::string_view("/-._~!$&'()*+,;=:@").find(c) != std::string_view::npos;
    if (plain) {
      address += c;
    } else {
      address += '%';
      address += digits[byte >> 4];
      address += digits[byte & 0xF];
    }
  }
  return address;
}

std::optional<HandedFileContent> readHandedFile(const HandedFile& file) {
  std::ifstream in(file.path, std::ios::binary);
  if (!in) return std::nullopt;
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return std::nullopt;
  auto text = decodeFileText(std::move(bytes));
  if (!text) return std::nullopt;
  HandedFileContent content;
  // The reader's lines are kept for the main thread: the caller's sink is not ours to call
  // from here.
  const SVGParser::Report report(
      [&content](std::string_view line) { content.reportLines.emplace_back(line); });
  content.snapshot = makeSnapshot(std::move(*text), file.fileName, file.config, report);
  return content;
}

ConversionService::ConversionService(DocumentEnvironment environment,
                                     DocumentController& controller, Print print)
    : environment_(std::move(environment)), controller_(&controller), print_(std::move(print)) {
  if (!print_) {
    print_ = [](std::string_view line) {
      std::fwrite(line.data(), 1, line.size(), stdout);
      std::fputc('\n', stdout);
      std::fflush(stdout);
    };
  }
}

std::string ConversionService::description() const {
  std::ostringstream text;
  text << "<SVGConverterService: " << static_cast<const void*>(this) << ">";
  return text.str();
}

void ConversionService::didRegister() {
  environment_.log->log("did register service:", *this);
}

std::optional<ServiceError> ConversionService::openSVG(std::string_view text) {
  if (text.empty()) {
    environment_.log->error("got no SVG string from pasteboard!");
    return ServiceError::openSVGMissingText();
  }
  environment_.pending->append(makeSnapshot(std::string(text), std::nullopt,
                                            environment_.defaults->defaultConfiguration(),
                                            environment_.report));
  if (auto failure = controller_->openUntitledDocument()) {
    environment_.log->error("could not open new document:", *failure);
    return ServiceError::couldNotCreateDocument();
  }
  return std::nullopt;
}

std::variant<std::string, ServiceError> ConversionService::svgToView(std::string_view text) {
  if (text.empty()) {
    environment_.log->error("got no SVG string from pasteboard!");
    return ServiceError::svgToViewMissingText();
  }
  auto generated = generateSwift(text, environment_.defaults->defaultConfiguration(),
                                 *environment_.log, environment_.report);
  if (generated.failed || generated.text.empty()) {
    environment_.log->error(
        [&] { return "could not shape SVG:\n---\n" + std::string(text) + "\n---"; });
    return ServiceError::invalidSVG();
  }
  return std::move(generated.text);
}

std::vector<HandedFile> ConversionService::openURLs(const std::vector<std::string>& addresses) {
  std::ostringstream controller;
  controller << "<DocumentController: " << static_cast<const void*>(controller_) << ">";
  environment_.log->log("open URLs:", listDescription(addresses), "in:", controller.str());
  std::vector<HandedFile> files;
  for (const auto& address : addresses) {
    // An address that is not a local file has no content type here; passed over in silence.
    auto path = localPathForAddress(address);
    if (!path) continue;
    std::error_code error;
    const auto status = std::filesystem::status(*path, error);
    if (error || !std::filesystem::exists(status)) {
      if (!error) error = std::make_error_code(std::errc::no_such_file_or_directory);
      environment_.log->error("failed to open:", error.message(), address);
      continue;
    }
    std::string fileName = path->filename().string();
    if (!std::filesystem::is_regular_file(status) ||
        contentTypeForPath(*path) != ContentType::svg) {
      environment_.log->log("  cannot open non-SVG file:", fileName);
      continue;
    }
    environment_.log->log("  open SVG:", address, fileName);
    files.push_back({address, std::move(*path), std::move(fileName),
                     environment_.defaults->defaultConfiguration()});
  }
  return files;
}

void ConversionService::openHandedFile(HandedFileContent content, const std::string& address) {
  for (const auto& line : content.reportLines) environment_.report.print({line});
  environment_.pending->append(std::move(content.snapshot));
  if (auto failure = controller_->openUntitledDocument()) {
    print_("OPEN ERROR: " + *failure + " " + address);
  }
}

}  // namespace SVGFigurerApp
