// The document framework of the desktop program: one window per document, new and open,
// recent documents, the shared preferences and quitting. It is the DocumentController that
// the pending-document queue's users (the service, files handed in, the sample menu) open
// untitled documents through.
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "SVGFigurerApp/DocumentController.h"
#include "SVGFigurerApp/SVGFigurerDocument.h"
#include "SVGFigurerWindow/WindowDialogs.h"

class QFileSystemWatcher;

namespace Highlight {
class Highlighter;
}

namespace SVGFigurerWindow {

class DocumentWindow;

inline constexpr const char* iconMonstrURL = "https://iconmonstr.com/";

class WindowManager : public QObject, public SVGFigurerApp::DocumentController {
  Q_OBJECT

 public:
  // `environment` gives the logger, the default settings and the pending queue of every new
  // document (its report sink is the manager's own).
  WindowManager(SVGFigurerApp::DocumentEnvironment environment, WindowDialogs dialogs,
                std::shared_ptr<Highlight::Highlighter> highlighter, QObject* parent = nullptr);
  ~WindowManager() override;

  std::optional<std::string> openUntitledDocument() override;
  // The window the new document went to, or null.
  DocumentWindow* newDocument();
  // Opens a file in a window of its own; a document already open is raised instead.
  DocumentWindow* openFile(const QString& path);
  void openWithDialog(QWidget* parent);

  // The menu action: into the focused document, or into a new one.
  void pickSample(std::string_view svg, DocumentWindow* focused);
  void showAbout();
  void openIconSite();
  // Closes every window, asking about unsaved changes; false if the user cancelled.
  bool closeAll();
  void quit();

  std::vector<DocumentWindow*> windows() const;
  // The active document window, if the active window is one.
  DocumentWindow* focusedWindow() const;

  bool useVerticalUI() const;
  // Persists the layout and applies it to every window.
  void setUseVerticalUI(bool value);
  QStringList recentDocuments() const;
  void noteRecentDocument(const QString& path);
  void clearRecentDocuments();

  // Watches the settings folder: a change made by another window or process reaches this one.
  void startObservingStore();
  // What the watcher runs: adopt a changed stored default, and apply the layout preference.
  void storeDidChange();

  const WindowDialogs& dialogs() const { return dialogs_; }
  const std::shared_ptr<Highlight::Highlighter>& highlighter() const { return highlighter_; }
  SVGFigurerApp::DocumentEnvironment& environment() { return environment_; }

  // The next untitled open fails with this reason (the queue keeps its record).
  void failNextOpenForTesting(std::string reason) { failNextOpen_ = std::move(reason); }

 Q_SIGNALS:
  void windowOpened(SVGFigurerWindow::DocumentWindow* window);

 private:
  DocumentWindow* show(std::unique_ptr<SVGFigurerApp::SVGFigurerDocument> document,
                       std::shared_ptr<std::vector<std::string>> lines, const QString& documentPath,
                       const QString& importedPath);
  SVGFigurerApp::DocumentEnvironment environmentWithReport(
      const std::shared_ptr<std::vector<std::string>>& lines) const;

  SVGFigurerApp::DocumentEnvironment environment_;
  WindowDialogs dialogs_;
  std::shared_ptr<Highlight::Highlighter> highlighter_;
  std::vector<QPointer<DocumentWindow>> windows_;
  QFileSystemWatcher* watcher_ = nullptr;
  std::optional<std::string> failNextOpen_;
};

}  // namespace SVGFigurerWindow
