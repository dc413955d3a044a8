// The document: the SVG text, the text generated from it, the source text the user sees and
// may edit, and the settings. Every change comes down to writing one of its published
// properties; writing the SVG text or the settings rebuilds at once, inside the write.
//
// The user's edit of the source is not a flag: the document is "edited" exactly while `swift`
// differs from `generatedSwift`. A rebuild pushes new text into `swift` only when unedited.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "CoreS/Logger.h"
#include "SVGFigurerApp/ConfigurationDefaults.h"
#include "SVGFigurerApp/DocumentFile.h"
#include "SVGFigurerApp/Generation.h"
#include "SVGFigurerApp/PendingDocumentQueue.h"
#include "SVGFigurerApp/SVGFigurerConfiguration.h"
#include "SVGFigurerApp/Snapshot.h"
#include "SVGParser/Report.h"

namespace SVGFigurerApp {

// The text of a new, untitled document.
extern const std::string_view defaultDocumentSVG;

// What a document talks to. `shared()` is the process-wide set: the default logger, the
// persisted default settings and the pending-document queue; tests pass their own.
struct DocumentEnvironment {
  CoreS::Logger* log = nullptr;
  ConfigurationDefaults* defaults = nullptr;
  PendingDocumentQueue* pending = nullptr;
  SVGParser::Report report;  // the reader's and converter's plain lines; discarded by default

  static DocumentEnvironment shared();
};

class SVGFigurerDocument;

// The window's undo manager, as far as the document needs it.
class UndoRegistrar {
 public:
  virtual ~UndoRegistrar() = default;
  virtual void registerUndo(SVGFigurerDocument& target,
                            std::function<void(SVGFigurerDocument&)> action) = 0;
};

class SVGFigurerDocument {
 public:
  using Snapshot = SVGFigurerApp::Snapshot;

  enum class Property : std::uint8_t {
    config,
    svgString,
    generatedSwift,
    swift,
    isRebuilding,
    rebuildFailed
  };
  // Called after every write of a published property, whether or not the value changed, so
  // that the observer reads the new value. An observer may write to the document; the writes
  // it causes notify in turn.
  using Observer = std::function<void(const SVGFigurerDocument&, Property)>;
  using ObserverID = std::uint64_t;

  // A new document with the default SVG text.
  explicit SVGFigurerDocument(DocumentEnvironment environment = DocumentEnvironment::shared());
  // The general constructor: takes the front of the pending-document queue if there is one;
  // otherwise rebuilds when the SVG text is non-empty and the source text empty.
  SVGFigurerDocument(std::string svg, std::string swift,
                     DocumentEnvironment environment = DocumentEnvironment::shared());
  SVGFigurerDocument(const SVGFigurerDocument&) = delete;
  SVGFigurerDocument& operator=(const SVGFigurerDocument&) = delete;

  using OpenResult = std::variant<std::unique_ptr<SVGFigurerDocument>, FileReadError>;
  // Opens a file: the stored settings are not applied, the source text stays as read and is
  // compared against a fresh generation with the default settings.
  static OpenResult open(const FileReadRequest& request,
                         DocumentEnvironment environment = DocumentEnvironment::shared());

  const SVGFigurerConfiguration& config() const { return config_; }
  const std::string& svgString() const { return svgString_; }
  const std::string& generatedSwift() const { return generatedSwift_; }
  const std::string& swift() const { return swift_; }
  bool isRebuilding() const { return isRebuilding_; }
  bool rebuildFailed() const { return rebuildFailed_; }
  // True while the user's source text differs from the generated text.
  bool isEdited() const { return swift_ != generatedSwift_; }

  // Rebuilds if the text differs from the old one.
  void setSVGString(std::string svg);
  // Rebuilds if any setting differs, then makes the settings the default for new documents.
  void setConfig(const SVGFigurerConfiguration& config);
  // A plain write: the code editor's keystrokes land here.
  void setSwift(std::string swift);
  // Drops the user's edits: `swift` takes the generated text. With an undo registrar, the
  // undo sets `swift` back to the edited text (and registers nothing further).
  void applyGeneratedSwift(UndoRegistrar* undo = nullptr);

  Snapshot snapshot() const { return Snapshot{svgString_, swift_, config_}; }

  ObserverID addObserver(Observer observer);
  void removeObserver(ObserverID id);

 private:
  struct Opened {};
  SVGFigurerDocument(Opened, Snapshot snapshot, DocumentEnvironment environment);

  void rebuild();
  void publish(Property property);
  template <class T>
  void write(T& field, T value, Property property) {
    field = std::move(value);
    publish(property);
  }

  CoreS::Logger* log_;
  DocumentEnvironment environment_;
  SVGFigurerConfiguration config_;
  std::string svgString_;
  std::string generatedSwift_;
  std::string swift_;
  bool isRebuilding_ = false;
  bool rebuildFailed_ = false;

  struct ObserverEntry {
    ObserverID id;
    std::shared_ptr<Observer> observer;
  };
  std::vector<ObserverEntry> observers_;
  ObserverID nextObserverID_ = 1;
};

}  // namespace SVGFigurerApp
