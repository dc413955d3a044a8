// What opens documents: the desktop program's window manager, a test's recorder. Content for
// a new document goes through the pending-document queue first; the controller then opens an
// untitled document, which takes the front record.
#pragma once

#include <optional>
#include <string>

namespace SVGFigurerApp {

class DocumentController {
 public:
  virtual ~DocumentController() = default;
  // Opens a new untitled document and shows it. Gives the reason on failure, in which case the
  // pending record stays in the queue for the next document.
  virtual std::optional<std::string> openUntitledDocument() = 0;
};

}  // namespace SVGFigurerApp
