// The ways SVG text reaches the program from outside a document window: the conversion
// service other programs call, and files handed to the running program. All of them end in
// the pending-document queue and a request to open an untitled document, which takes the
// front record. The bus adaptor and the background threads live in the desktop program; this
// is the logic they call, on the main thread unless said otherwise.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "SVGFigurerApp/DocumentController.h"
#include "SVGFigurerApp/SVGFigurerConfiguration.h"
#include "SVGFigurerApp/SVGFigurerDocument.h"
#include "SVGFigurerApp/Snapshot.h"

namespace SVGFigurerApp {

inline constexpr std::string_view serviceErrorDomain = "net.quivane.errors.figurer.svg.errors";

struct ServiceError {
  int code = 0;                      // always negative
  std::string name;                  // the short name, e.g. "MissingSVGText"
  std::string localizedDescription;  // e.g. "Missing SVG text?"

  bool operator==(const ServiceError&) const = default;
  // The domain and the short name: the name of the bus error reply.
  std::string qualifiedName() const;
  // The description and the code: "Missing SVG text? (-32423)".
  std::string message() const;

  static ServiceError openSVGMissingText();
  static ServiceError couldNotCreateDocument();
  static ServiceError svgToViewMissingText();
  static ServiceError invalidSVG();
};

// A file handed to the program that passed the checks on the main thread and waits to be
// read in the background, with its own copy of the settings it will be converted with.
struct HandedFile {
  std::string address;  // as handed in
  std::filesystem::path path;
  std::string fileName;  // the last path component
  SVGFigurerConfiguration config;

  bool operator==(const HandedFile&) const = default;
};

// What the background read of a handed file gives back to the main thread: the record for
// the queue and the reader's report lines, which are printed there.
struct HandedFileContent {
  Snapshot snapshot;
  std::vector<std::string> reportLines;

  bool operator==(const HandedFileContent&) const = default;
};

// The local path of a "file:" address, percent-decoded; nothing for any other address.
std::optional<std::filesystem::path> localPathForAddress(std::string_view address);
// The "file://" address of an absolute path, percent-encoded where needed.
std::string addressForLocalPath(const std::filesystem::path& path);

// Reads a handed file as text (UTF-8, or UTF-16 with a byte order mark) and converts it.
// Safe on any thread: touches only its argument. Nothing, in silence, if it cannot be read.
std::optional<HandedFileContent> readHandedFile(const HandedFile& file);

class ConversionService {
 public:
  // Plain console lines ("OPEN ERROR: ..."), which are not log lines; standard output by default.
  using Print = std::function<void(std::string_view line)>;

  ConversionService(DocumentEnvironment environment, DocumentController& controller,
                    Print print = {});

  std::string description() const;
  // Logs "did register service:" once the bus (or whatever offers the service) has it.
  void didRegister();

  // Opens the text as a new untitled document. Text that does not parse still opens, with
  // the failure text; a failed open leaves the record queued for the next new document.
  std::optional<ServiceError> openSVG(std::string_view text);
  // The generated source text, header included, with the default settings.
  std::variant<std::string, ServiceError> svgToView(std::string_view text);

  // Checks each address in order and logs what it does with it; gives the SVG files to read
  // in the background, in order. Addresses that are not local files are passed over.
  std::vector<HandedFile> openURLs(const std::vector<std::string>& addresses);
  // The main-thread end of one background read: queue the record and open a document.
  void openHandedFile(HandedFileContent content, const std::string& address);

  const DocumentEnvironment& environment() const { return environment_; }

 private:
  DocumentEnvironment environment_;
  DocumentController* controller_;
  Print print_;
};

}  // namespace SVGFigurerApp
