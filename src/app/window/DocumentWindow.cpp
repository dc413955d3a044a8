#include "SVGFigurerWindow/DocumentWindow.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>
#include <cstdio>

#include "FigurerUtilities/CodeEditor.h"
#include "FigurerUtilities/SVGWebView.h"
#include "SVGFigurerApp/AtomicFile.h"
#include "SVGFigurerApp/DocumentFile.h"
#include "SVGFigurerApp/ExampleCatalogue.h"
#include "SVGFigurerWindow/DroppedContent.h"
#include "SVGFigurerWindow/ExportSettingsView.h"
#include "SVGFigurerWindow/Icons.h"
#include "SVGFigurerWindow/SourcePane.h"
#include "SVGFigurerWindow/WindowManager.h"

namespace SVGFigurerWindow {

using SVGFigurerApp::SVGFigurerDocument;
using Property = SVGFigurerDocument::Property;

namespace {

// The plain console print: a line on standard output, as the reader's lines go.
void printLine(const std::string& line) {
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

// The drop of edits, as one step of the window's undo history: undo gives the user's text
// back, redo drops it again.
class DropEditsCommand final : public QUndoCommand {
 public:
  DropEditsCommand(SVGFigurerDocument& document, std::function<void(SVGFigurerDocument&)> undo)
      : QUndoCommand(QObject::tr("Drop Changes")), document_(document), undo_(std::move(undo)) {}

  void undo() override { undo_(document_); }
  void redo() override {
    // Pushing runs redo at once; the drop itself has already happened then.
    if (first_) {
      first_ = false;
      return;
    }
    document_.applyGeneratedSwift(nullptr);
  }

 private:
  SVGFigurerDocument& document_;
  std::function<void(SVGFigurerDocument&)> undo_;
  bool first_ = true;
};

class UndoStackRegistrar final : public SVGFigurerApp::UndoRegistrar {
 public:
  explicit UndoStackRegistrar(QUndoStack& stack) : stack_(stack) {}
  void registerUndo(SVGFigurerDocument& target,
                    std::function<void(SVGFigurerDocument&)> action) override {
    stack_.push(new DropEditsCommand(target, std::move(action)));
  }

 private:
  QUndoStack& stack_;
};

QString fromUTF8(const std::string& text) { return QString::fromUtf8(text.data(), text.size()); }

}  // namespace

DocumentWindow::DocumentWindow(WindowManager& manager,
                               std::unique_ptr<SVGFigurerDocument> document,
                               ReportLines reportLines, DocumentOrigin origin)
    : manager_(manager),
      document_(std::move(document)),
      reportLines_(std::move(reportLines)),
      origin_(std::move(origin)),
      savedSnapshot_(document_->snapshot()),
      font_(FigurerUtilities::CodeEditor::defaultFont()),
      stackVertically_(manager.useVerticalUI()) {
  setAttribute(Qt::WA_DeleteOnClose);
  setAcceptDrops(true);
  undoStack_ = new QUndoStack(this);
  buildPanes();
  buildToolbar();
  buildMenus();
  setStackVertically(stackVertically_);

  svgEditor_->setSource(document_->svgString());
  swiftEditor_->setSource(document_->swift());
  preview_->setSVG(document_->svgString());
  settingsView_->setConfig(document_->config());
  updateBanner();
  updateOverlay();
  updateIssues();
  updateTitle();

  observer_ = document_->addObserver(
      [this](const SVGFigurerDocument&, Property property) { documentChanged(property); });
  resize(1280, 800);
}

DocumentWindow::~DocumentWindow() {
  if (document_) document_->removeObserver(observer_);
}

void DocumentWindow::buildPanes() {
  svgEditor_ = new FigurerUtilities::CodeEditor(manager_.highlighter(), std::string("xml"));
  svgEditor_->setObjectName(QStringLiteral("svgEditor"));
  svgEditor_->setAcceptableDropTypes({QStringLiteral("text/plain")});
  swiftEditor_ = new FigurerUtilities::CodeEditor(manager_.highlighter(), std::string("swift"));
  swiftEditor_->setObjectName(QStringLiteral("swiftEditor"));
  for (auto* editor : {svgEditor_, swiftEditor_}) {
    editor->setThemeFont(font_);
    editor->setBeep(manager_.dialogs().beep);
    connect(editor, &FigurerUtilities::CodeEditor::fontChangeRequested, this,
            &DocumentWindow::setEditorFont);
    connect(editor->document(), &QTextDocument::undoCommandAdded, this,
            [this] { lastUndoable_ = LastUndoable::editor; });
  }
  connect(svgEditor_, &FigurerUtilities::CodeEditor::sourceEdited, this,
          [this] { document_->setSVGString(svgEditor_->source()); });
  connect(swiftEditor_, &FigurerUtilities::CodeEditor::sourceEdited, this,
          [this] { document_->setSwift(swiftEditor_->source()); });

  preview_ = new FigurerUtilities::SVGWebView;
  preview_->setObjectName(QStringLiteral("preview"));
  sourcePane_ = new SourcePane(swiftEditor_);
  sourcePane_->setObjectName(QStringLiteral("sourcePane"));

  settingsView_ = new ExportSettingsView;
  settingsView_->setObjectName(QStringLiteral("settingsView"));
  settingsView_->setBeep(manager_.dialogs().beep);
  connect(settingsView_, &ExportSettingsView::configEdited, this,
          [this](const SVGFigurerApp::SVGFigurerConfiguration& config) {
            document_->setConfig(config);
          });
  auto* scroll = new QScrollArea;
  scroll->setWidget(settingsView_);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setMinimumWidth(settingsView_->sizeHint().width() + 24);
  sidebar_ = scroll;
  sidebar_->setObjectName(QStringLiteral("sidebar"));

  banner_ = new QFrame;
  banner_->setObjectName(QStringLiteral("editedBanner"));
  auto* bannerRow = new QHBoxLayout(banner_);
  bannerRow->setContentsMargins(8, 4, 8, 4);
  auto* bannerText = new QLabel(tr("Swift code has been edited, SVG changes are not applied."));
  bannerText->setObjectName(QStringLiteral("editedBannerText"));
  auto* bannerButton =
      new QPushButton(bundledIcon(ToolbarIcon::dropChanges), tr("Drop changes and apply generated Swift"));
  bannerButton->setObjectName(QStringLiteral("applyGeneratedSwift"));
  bannerButton->setIcon(toolbarIcon(ToolbarIcon::dropChanges));
  bannerButton->setFocusPolicy(Qt::NoFocus);
  connect(bannerButton, &QPushButton::clicked, this, &DocumentWindow::applyChanges);
  bannerRow->addWidget(bannerText, 1);
  bannerRow->addWidget(bannerButton);
  banner_->setAutoFillBackground(true);
  QPalette bannerPalette = banner_->palette();
  bannerPalette.setColor(QPalette::Window, QColor(0xff, 0xf4, 0xc2));
  bannerPalette.setColor(QPalette::WindowText, QColor(0x3a, 0x30, 0x00));
  banner_->setPalette(bannerPalette);

  editorSplitter_ = new QSplitter;
  editorSplitter_->setObjectName(QStringLiteral("editorSplitter"));
  editorSplitter_->addWidget(svgEditor_);
  editorSplitter_->addWidget(preview_);
  editorSplitter_->setChildrenCollapsible(false);
  outerSplitter_ = new QSplitter;
  outerSplitter_->setObjectName(QStringLiteral("outerSplitter"));
  outerSplitter_->addWidget(editorSplitter_);
  outerSplitter_->addWidget(sourcePane_);
  outerSplitter_->setChildrenCollapsible(false);

  auto* main = new QWidget;
  auto* column = new QVBoxLayout(main);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(banner_);
  column->addWidget(outerSplitter_, 1);

  auto* content = new QSplitter(Qt::Horizontal);
  content->setObjectName(QStringLiteral("contentSplitter"));
  content->addWidget(sidebar_);
  content->addWidget(main);
  content->setStretchFactor(0, 0);
  content->setStretchFactor(1, 1);
  content->setCollapsible(1, false);
  setCentralWidget(content);

  issuesStatus_ = new QLabel;
  issuesStatus_->setObjectName(QStringLiteral("issuesStatus"));
  statusBar()->addPermanentWidget(issuesStatus_);
  connect(sourcePane_, &SourcePane::issueCountChanged, this, [this] { updateIssues(); });
}

void DocumentWindow::buildToolbar() {
  auto* toolbar = addToolBar(tr("Toolbar"));
  toolbar->setObjectName(QStringLiteral("mainToolbar"));
  toolbar->setMovable(false);
  toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);

  sidebarAction_ = toolbar->addAction(toolbarIcon(ToolbarIcon::sidebar), tr("Sidebar"));
  sidebarAction_->setObjectName(QStringLiteral("toolbarSidebar"));
  sidebarAction_->setToolTip(tr("Show or hide the settings"));
  sidebarAction_->setCheckable(true);
  sidebarAction_->setChecked(true);
  sidebarAction_->setShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_S));
  connect(sidebarAction_, &QAction::triggered, this, &DocumentWindow::toggleSidebar);
  if (auto* button = toolbar->widgetForAction(sidebarAction_))
    static_cast<QToolButton*>(button)->setToolButtonStyle(Qt::ToolButtonIconOnly);

  layoutAction_ = toolbar->addAction(QIcon(), tr("Layout"));
  layoutAction_->setObjectName(QStringLiteral("toolbarLayout"));
  layoutAction_->setToolTip(tr("Stack the editors or put them side by side"));
  connect(layoutAction_, &QAction::triggered, this, &DocumentWindow::flipLayout);
  if (auto* button = toolbar->widgetForAction(layoutAction_))
    static_cast<QToolButton*>(button)->setToolButtonStyle(Qt::ToolButtonIconOnly);

  auto* spacer = new QWidget;
  spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  toolbar->addWidget(spacer);

  dropChangesAction_ = toolbar->addAction(toolbarIcon(ToolbarIcon::dropChanges), tr("Drop changes"));
  dropChangesAction_->setObjectName(QStringLiteral("toolbarDropChanges"));
  connect(dropChangesAction_, &QAction::triggered, this, &DocumentWindow::applyChanges);

  copyAction_ = toolbar->addAction(toolbarIcon(ToolbarIcon::copy), tr("Copy"));
  copyAction_->setObjectName(QStringLiteral("toolbarCopy"));
  copyAction_->setToolTip(tr("Copy the Swift source"));
  connect(copyAction_, &QAction::triggered, this, &DocumentWindow::copySource);
}

void DocumentWindow::buildMenus() {
  auto add = [this](QMenu* menu, const QString& name, const QString& text,
                    const QKeySequence& shortcut, auto slot) {
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    if (!shortcut.isEmpty()) action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, slot);
    return action;
  };

  QMenu* file = menuBar()->addMenu(tr("&File"));
  add(file, "fileNew", tr("&New"), QKeySequence::New, [this] { manager_.newDocument(); });
  add(file, "fileOpen", tr("&Open…"), QKeySequence::Open, [this] { manager_.openWithDialog(this); });
  recentMenu_ = file->addMenu(tr("Open &Recent"));
  recentMenu_->setObjectName(QStringLiteral("fileOpenRecent"));
  file->addSeparator();
  add(file, "fileSave", tr("&Save"), QKeySequence::Save, [this] { save(); });
  add(file, "fileSaveAs", tr("Save &As…"), QKeySequence::SaveAs, [this] { saveAs(); });
  add(file, "fileExportSwift", tr("&Export Swift…"), QKeySequence(Qt::CTRL | Qt::Key_E),
      [this] { exportSwift(); });
  file->addSeparator();
  add(file, "fileClose", tr("&Close"), QKeySequence::Close, [this] { close(); });
  add(file, "fileQuit", tr("&Quit"), QKeySequence::Quit, [this] { manager_.quit(); });
  refreshRecentDocuments();

  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  add(edit, "editUndo", tr("&Undo"), QKeySequence::Undo, [this] { undo(); });
  add(edit, "editRedo", tr("&Redo"), QKeySequence::Redo, [this] { redo(); });
  edit->addSeparator();
  add(edit, "editCut", tr("Cu&t"), QKeySequence::Cut, [this] {
    if (auto* editor = focusedEditor()) editor->cut();
  });
  add(edit, "editCopy", tr("&Copy"), QKeySequence::Copy, [this] {
    if (auto* editor = focusedEditor())
      editor->copy();
    else
      copySource();
  });
  add(edit, "editPaste", tr("&Paste"), QKeySequence::Paste, [this] {
    if (auto* editor = focusedEditor()) editor->paste();
  });
  add(edit, "editSelectAll", tr("Select &All"), QKeySequence::SelectAll, [this] {
    if (auto* editor = focusedEditor()) editor->selectAll();
  });

  QMenu* view = menuBar()->addMenu(tr("&View"));
  view->addAction(sidebarAction_);
  view->addAction(layoutAction_);
  view->addSeparator();
  QAction* bigger = add(view, "viewBigger", tr("&Bigger"), QKeySequence::ZoomIn,
                        [this] { increaseFontSize(); });
  bigger->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
  add(view, "viewSmaller", tr("&Smaller"), QKeySequence(Qt::CTRL | Qt::Key_Minus),
      [this] { decreaseFontSize(); });
  QAction* issues = view->addAction(tr("&Issues"));
  issues->setObjectName(QStringLiteral("viewIssues"));
  issues->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_I));
  connect(issues, &QAction::triggered, this,
          [this] { sourcePane_->setIssuesExpanded(!sourcePane_->issuesExpanded()); });

  QMenu* format = menuBar()->addMenu(tr("F&ormat"));
  add(format, "formatFont", tr("&Font…"), QKeySequence(Qt::CTRL | Qt::Key_T), [this] {
    if (auto font = manager_.dialogs().chooseFont(this, font_)) changeFont(1, *font);
  });
  add(format, "formatBold", tr("&Bold"), QKeySequence(Qt::CTRL | Qt::Key_B),
      [this] { changeFont(2); });
  add(format, "formatItalic", tr("&Italic"), QKeySequence(Qt::CTRL | Qt::Key_I),
      [this] { changeFont(2); });

  QMenu* samples = menuBar()->addMenu(tr("Sample SVGs"));
  samples->setObjectName(QStringLiteral("sampleMenu"));
  for (const auto& sample : SVGFigurerApp::exampleSVGs()) {
    const QString name = QString::fromUtf8(sample.name.data(), sample.name.size());
    const std::string_view svg = sample.svg;
    add(samples, "sample" + name, name, QKeySequence(), [this, svg] { pickSample(svg); });
  }
  samples->addSeparator();
  add(samples, "sampleOpenIconMonstr", tr("Open IconMonstr …"), QKeySequence(),
      [this] { manager_.openIconSite(); });

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  add(help, "helpAbout", tr("&About SVGFigurer"), QKeySequence(), [this] { manager_.showAbout(); });
}

QAction* DocumentWindow::action(const QString& objectName) const {
  return findChild<QAction*>(objectName);
}

void DocumentWindow::documentChanged(Property property) {
  switch (property) {
    case Property::svgString:
      svgEditor_->setSource(document_->svgString());
      preview_->setSVG(document_->svgString());
      updateTitle();
      break;
    case Property::swift:
      swiftEditor_->setSource(document_->swift());
      updateBanner();
      updateOverlay();
      updateTitle();
      break;
    case Property::generatedSwift:
      updateBanner();
      break;
    case Property::config:
      settingsView_->setConfig(document_->config());
      updateTitle();
      break;
    case Property::isRebuilding:
      // A rebuild starts with a clean slate of report lines and ends by showing them.
      if (document_->isRebuilding())
        reportLines_->clear();
      else
        updateIssues();
      updateOverlay();
      break;
    case Property::rebuildFailed:
      updateOverlay();
      break;
  }
}

void DocumentWindow::updateBanner() {
  const bool edited = document_->isEdited();
  banner_->setVisible(edited);
  dropChangesAction_->setVisible(edited);
  dropChangesAction_->setEnabled(edited);
}

void DocumentWindow::updateOverlay() {
  sourcePane_->setOverlay(sourceOverlay(document_->rebuildFailed(), document_->swift().empty(),
                                        document_->isRebuilding()));
}

void DocumentWindow::updateIssues() {
  sourcePane_->setIssues(*reportLines_);
  const int count = sourcePane_->issueCount();
  issuesStatus_->setText(count == 0 ? tr("No issues")
                                    : (count == 1 ? tr("1 issue") : tr("%1 issues").arg(count)));
}

QString DocumentWindow::displayName() const {
  if (!origin_.documentPath.isEmpty()) return QFileInfo(origin_.documentPath).fileName();
  if (!origin_.importedPath.isEmpty()) return QFileInfo(origin_.importedPath).fileName();
  return tr("Untitled");
}

bool DocumentWindow::hasUnsavedChanges() const {
  // Untitled content that came in from outside (a sample, the service, a file handed in) is
  // worth keeping as much as typed content is; an untouched new document is not.
  // Compared in place: a snapshot copies both texts, and this runs on every keystroke.
  return document_->svgString() != savedSnapshot_.svg ||
         document_->swift() != savedSnapshot_.swift || savedSnapshot_.config != document_->config();
}

void DocumentWindow::updateTitle() {
  setWindowTitle(displayName() + QStringLiteral("[*] — SVGFigurer"));
  setWindowModified(hasUnsavedChanges());
}

bool DocumentWindow::isBannerVisible() const { return !banner_->isHidden(); }
bool DocumentWindow::isDropChangesAvailable() const { return dropChangesAction_->isVisible(); }
bool DocumentWindow::isSidebarVisible() const { return !sidebar_->isHidden(); }

void DocumentWindow::applyChanges() {
  UndoStackRegistrar registrar(*undoStack_);
  document_->applyGeneratedSwift(&registrar);
  lastUndoable_ = LastUndoable::window;
}

void DocumentWindow::copySource() {
  QApplication::clipboard()->setText(fromUTF8(document_->swift()));
}

void DocumentWindow::toggleSidebar() {
  const bool visible = !isSidebarVisible();
  sidebar_->setVisible(visible);
  sidebarAction_->setChecked(visible);
}

void DocumentWindow::flipLayout() { manager_.setUseVerticalUI(!stackVertically_); }

void DocumentWindow::setStackVertically(bool value) {
  stackVertically_ = value;
  // Stacked: the SVG editor and the preview side by side over the source; otherwise the two
  // over each other beside the source.
  outerSplitter_->setOrientation(value ? Qt::Vertical : Qt::Horizontal);
  editorSplitter_->setOrientation(value ? Qt::Horizontal : Qt::Vertical);
  layoutAction_->setIcon(toolbarIcon(value ? ToolbarIcon::sideBySide : ToolbarIcon::stacked));
  // Equal shares: the preview has no size of its own to ask for.
  editorSplitter_->setSizes({1000, 1000});
  outerSplitter_->setSizes({1000, 1000});
}

FigurerUtilities::CodeEditor* DocumentWindow::focusedEditor() const {
  QWidget* focus = QApplication::focusWidget();
  if (focus == svgEditor_ || svgEditor_->isAncestorOf(focus)) return svgEditor_;
  if (focus == swiftEditor_ || swiftEditor_->isAncestorOf(focus)) return swiftEditor_;
  return nullptr;
}

void DocumentWindow::undo() {
  auto* editor = focusedEditor();
  const bool editorCan = editor && editor->document()->isUndoAvailable();
  if (undoStack_->canUndo() && (lastUndoable_ == LastUndoable::window || !editorCan)) {
    undoStack_->undo();
    lastUndoable_ = LastUndoable::windowUndone;
    return;
  }
  if (editorCan) editor->undo();
}

void DocumentWindow::redo() {
  auto* editor = focusedEditor();
  const bool editorCan = editor && editor->document()->isRedoAvailable();
  if (undoStack_->canRedo() && (lastUndoable_ == LastUndoable::windowUndone || !editorCan)) {
    undoStack_->redo();
    lastUndoable_ = LastUndoable::window;
    return;
  }
  if (editorCan) editor->redo();
}

void DocumentWindow::setEditorFont(const QFont& font) {
  font_ = font;
  svgEditor_->setThemeFont(font_);
  swiftEditor_->setThemeFont(font_);
}

void DocumentWindow::increaseFontSize() { changeFont(3); }
void DocumentWindow::decreaseFontSize() { changeFont(4); }

void DocumentWindow::changeFont(int action, std::optional<QFont> selected) {
  if (auto* editor = focusedEditor()) {
    editor->changeFont(action, selected);
    return;
  }
  switch (action) {
    case 1:
      if (selected) setEditorFont(*selected);
      break;
    case 2:
    case 7:
      printLine("ADD traits");
      break;
    case 3:
    case 4: {
      QFont font = font_;
      font.setPointSizeF(font.pointSizeF() + (action == 3 ? 1 : -1));
      setEditorFont(font);
      break;
    }
    default:
      printLine("CHANGE FONT: " + std::to_string(action));
      break;
  }
}

void DocumentWindow::pickSample(std::string_view svg) { manager_.pickSample(svg, this); }

void DocumentWindow::dropBytes(const QByteArray& bytes) {
  auto text = decodeDroppedText(bytes);
  if (!text) {
    printLine("ERROR: could not load drop data string: " + std::to_string(bytes.size()) + " bytes");
    return;
  }
  document_->setSVGString(std::move(*text));
}

void DocumentWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData() && acceptsDrop(*event->mimeData())) event->acceptProposedAction();
}

void DocumentWindow::dragMoveEvent(QDragMoveEvent* event) {
  if (event->mimeData() && acceptsDrop(*event->mimeData())) event->acceptProposedAction();
}

void DocumentWindow::dropEvent(QDropEvent* event) {
  if (event->mimeData() && handleDrop(*event->mimeData())) event->acceptProposedAction();
}

bool DocumentWindow::handleDrop(const QMimeData& data) {
  if (!acceptsDrop(data)) return false;
  auto bytes = droppedBytes(data);
  if (!bytes) {
    printLine("ERROR: failed to load drop data: the file could not be read");
    return false;
  }
  dropBytes(*bytes);
  return true;
}

QString DocumentWindow::suggestedPath(const QString& extension) const {
  const QString source = !origin_.documentPath.isEmpty() ? origin_.documentPath : origin_.importedPath;
  if (source.isEmpty()) return tr("Untitled") + "." + extension;
  const QFileInfo info(source);
  return info.dir().filePath(info.completeBaseName() + "." + extension);
}

bool DocumentWindow::writeDocument(const QString& path) {
  const auto snapshot = document_->snapshot();
  const auto bytes = SVGFigurerApp::encodeSnapshot(snapshot);
  if (!bytes) {
    manager_.dialogs().showError(this, tr("Could not save"),
                                 tr("The document could not be saved: %1")
                                     .arg(QString::fromStdString(bytes.error)));
    return false;
  }
  if (auto error = SVGFigurerApp::writeFileAtomically(path.toStdString(), *bytes.value)) {
    manager_.dialogs().showError(
        this, tr("Could not save"),
        tr("“%1” could not be written: %2").arg(path, QString::fromStdString(*error)));
    return false;
  }
  origin_.documentPath = path;
  savedSnapshot_ = snapshot;
  manager_.noteRecentDocument(path);
  updateTitle();
  return true;
}

bool DocumentWindow::save() {
  // Content read from an .svg or .swift file is never written back over that file.
  if (origin_.documentPath.isEmpty()) return saveAs();
  return writeDocument(origin_.documentPath);
}

bool DocumentWindow::saveAs() {
  QString path = manager_.dialogs().saveFileName(this, suggestedPath("svgfigurer"));
  if (path.isEmpty()) return false;
  if (!path.endsWith(QStringLiteral(".svgfigurer"), Qt::CaseInsensitive)) path += ".svgfigurer";
  return writeDocument(path);
}

bool DocumentWindow::exportSwift() {
  QString path = manager_.dialogs().exportFileName(this, suggestedPath("swift"));
  if (path.isEmpty()) {
    printLine("RES: cancelled");
    return false;
  }
  if (!path.endsWith(QStringLiteral(".swift"), Qt::CaseInsensitive)) path += ".swift";
  if (auto error = SVGFigurerApp::writeFileAtomically(path.toStdString(), document_->swift())) {
    printLine("RES: failure: " + *error);
    manager_.dialogs().showError(
        this, tr("Could not export"),
        tr("“%1” could not be written: %2").arg(path, QString::fromStdString(*error)));
    return false;
  }
  printLine("RES: success: " + path.toStdString());
  return true;
}

bool DocumentWindow::maybeClose() {
  if (!hasUnsavedChanges()) return true;
  switch (manager_.dialogs().askToSaveChanges(this, displayName())) {
    case UnsavedChangesChoice::save:
      return save();
    case UnsavedChangesChoice::discard:
      return true;
    case UnsavedChangesChoice::cancel:
      return false;
  }
  return false;
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
  if (maybeClose())
    event->accept();
  else
    event->ignore();
}

void DocumentWindow::refreshRecentDocuments() {
  recentMenu_->clear();
  const QStringList paths = manager_.recentDocuments();
  for (const QString& path : paths) {
    QAction* action = recentMenu_->addAction(QFileInfo(path).fileName());
    action->setToolTip(path);
    connect(action, &QAction::triggered, this, [this, path] { manager_.openFile(path); });
  }
  if (!paths.isEmpty()) recentMenu_->addSeparator();
  QAction* clear = recentMenu_->addAction(tr("Clear Menu"));
  clear->setEnabled(!paths.isEmpty());
  connect(clear, &QAction::triggered, this, [this] { manager_.clearRecentDocuments(); });
}

}  // namespace SVGFigurerWindow
