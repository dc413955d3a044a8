// The window of one document: the settings sidebar, the SVG editor, the preview, the source
// editor with its overlays and diagnostics, the edited banner, the toolbar and the menus.
// It holds no logic of its own beyond wiring: every change goes into the document through its
// setters, and the document's published properties redraw the panes.
#pragma once

#include <QFont>
#include <QMainWindow>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "SVGFigurerApp/SVGFigurerDocument.h"

class QAction;
class QLabel;
class QMenu;
class QMimeData;
class QSplitter;
class QUndoStack;

namespace FigurerUtilities {
class CodeEditor;
class SVGWebView;
}  // namespace FigurerUtilities

namespace SVGFigurerWindow {

class ExportSettingsView;
class SourcePane;
class WindowManager;

// The report lines of the rebuild in progress or last finished; filled by the document's
// report sink, read by the window.
using ReportLines = std::shared_ptr<std::vector<std::string>>;

// Where a document came from on disk.
struct DocumentOrigin {
  // A document file that Save writes back; empty for a new document or imported content.
  QString documentPath;
  // The .svg or .swift file the content was read from, which Save never overwrites.
  QString importedPath;
};

class DocumentWindow : public QMainWindow {
  Q_OBJECT

 public:
  DocumentWindow(WindowManager& manager, std::unique_ptr<SVGFigurerApp::SVGFigurerDocument> document,
                 ReportLines reportLines, DocumentOrigin origin);
  ~DocumentWindow() override;

  SVGFigurerApp::SVGFigurerDocument& document() { return *document_; }
  const DocumentOrigin& origin() const { return origin_; }
  // The name in the title: the document file's, else the imported file's, else "Untitled".
  QString displayName() const;
  bool hasUnsavedChanges() const;

  FigurerUtilities::CodeEditor& svgEditor() { return *svgEditor_; }
  FigurerUtilities::CodeEditor& swiftEditor() { return *swiftEditor_; }
  FigurerUtilities::SVGWebView& preview() { return *preview_; }
  SourcePane& sourcePane() { return *sourcePane_; }
  ExportSettingsView& settingsView() { return *settingsView_; }
  bool isBannerVisible() const;
  bool isDropChangesAvailable() const;
  bool isSidebarVisible() const;
  bool stacksVertically() const { return stackVertically_; }
  QFont editorFont() const { return font_; }
  // The menu-bar action with this object name ("fileSave", "editUndo", "sampleSimple Ellipse",
  // ...), for tests and for the manager.
  QAction* action(const QString& objectName) const;

  // Toolbar and menu commands.
  void applyChanges();  // "Drop changes and apply generated Swift"
  void copySource();    // the toolbar's "Copy": the source text to the clipboard
  void toggleSidebar();
  void flipLayout();
  void setStackVertically(bool value);  // from the shared preference; does not persist
  void undo();
  void redo();
  void increaseFontSize();
  void decreaseFontSize();
  // The font command: 1 a font from the panel, 2 and 7 traits, 3 and 4 size steps. With an
  // editor focused the editor answers it; otherwise the window does.
  void changeFont(int action, std::optional<QFont> selected = std::nullopt);
  void setEditorFont(const QFont& font);
  void pickSample(std::string_view svg);
  // Replaces the SVG text with dropped bytes; bytes that are not UTF-8 change nothing.
  void dropBytes(const QByteArray& bytes);
  // A drop on the window: an .svg file or SVG text replaces the SVG; anything else is refused.
  bool handleDrop(const QMimeData& data);

  bool save();
  bool saveAs();
  bool exportSwift();
  // Asks about unsaved changes; true when the window may close.
  bool maybeClose();
  void refreshRecentDocuments();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void buildPanes();
  void buildToolbar();
  void buildMenus();
  void documentChanged(SVGFigurerApp::SVGFigurerDocument::Property property);
  void updateBanner();
  void updateOverlay();
  void updateTitle();
  void updateIssues();
  bool writeDocument(const QString& path);
  QString suggestedPath(const QString& extension) const;
  FigurerUtilities::CodeEditor* focusedEditor() const;

  WindowManager& manager_;
  std::unique_ptr<SVGFigurerApp::SVGFigurerDocument> document_;
  SVGFigurerApp::SVGFigurerDocument::ObserverID observer_ = 0;
  ReportLines reportLines_;
  DocumentOrigin origin_;
  SVGFigurerApp::Snapshot savedSnapshot_;
  QFont font_;
  bool stackVertically_ = true;

  FigurerUtilities::CodeEditor* svgEditor_ = nullptr;
  FigurerUtilities::CodeEditor* swiftEditor_ = nullptr;
  FigurerUtilities::SVGWebView* preview_ = nullptr;
  SourcePane* sourcePane_ = nullptr;
  ExportSettingsView* settingsView_ = nullptr;
  QWidget* sidebar_ = nullptr;
  QWidget* banner_ = nullptr;
  QSplitter* outerSplitter_ = nullptr;
  QSplitter* editorSplitter_ = nullptr;
  QLabel* issuesStatus_ = nullptr;
  QAction* sidebarAction_ = nullptr;
  QAction* layoutAction_ = nullptr;
  QAction* dropChangesAction_ = nullptr;
  QAction* copyAction_ = nullptr;
  QMenu* recentMenu_ = nullptr;
  QUndoStack* undoStack_ = nullptr;
  // Which undo history the last undoable step went to: an editor's own or the window's.
  enum class LastUndoable { editor, window, windowUndone } lastUndoable_ = LastUndoable::editor;
};

}  // namespace SVGFigurerWindow
