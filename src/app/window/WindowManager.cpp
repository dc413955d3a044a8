#include "SVGFigurerWindow/WindowManager.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <cstdio>
#include <variant>

#include "SVGFigurerApp/ConfigurationDefaults.h"
#include "SVGFigurerApp/DocumentFile.h"
#include "SVGFigurerApp/ExampleCatalogue.h"
#include "SVGFigurerWindow/AboutWindow.h"
#include "SVGFigurerWindow/DocumentWindow.h"
#include "SVGFigurerWindow/WindowPreferences.h"

namespace SVGFigurerWindow {

using SVGFigurerApp::SVGFigurerDocument;

WindowManager::WindowManager(SVGFigurerApp::DocumentEnvironment environment, WindowDialogs dialogs,
                             std::shared_ptr<Highlight::Highlighter> highlighter, QObject* parent)
    : QObject(parent),
      environment_(std::move(environment)),
      dialogs_(std::move(dialogs)),
      highlighter_(std::move(highlighter)) {}

WindowManager::~WindowManager() {
  for (const auto& window : windows_) delete window.data();
}

SVGFigurerApp::DocumentEnvironment WindowManager::environmentWithReport(
    const std::shared_ptr<std::vector<std::string>>& lines) const {
  SVGFigurerApp::DocumentEnvironment environment = environment_;
  // The reader's and converter's lines go to standard output, as they always have, and to
  // the window that shows them.
  environment.report = SVGParser::Report([lines](std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
    lines->emplace_back(line);
  });
  return environment;
}

DocumentWindow* WindowManager::show(std::unique_ptr<SVGFigurerDocument> document,
                                    std::shared_ptr<std::vector<std::string>> lines,
                                    const QString& documentPath, const QString& importedPath) {
  auto* window =
      new DocumentWindow(*this, std::move(document), std::move(lines), {documentPath, importedPath});
  windows_.emplace_back(window);
  window->show();
  window->raise();
  window->activateWindow();
  Q_EMIT windowOpened(window);
  return window;
}

std::optional<std::string> WindowManager::openUntitledDocument() {
  if (failNextOpen_) {
    auto reason = std::move(*failNextOpen_);
    failNextOpen_.reset();
    return reason;
  }
  newDocument();
  return std::nullopt;
}

DocumentWindow* WindowManager::newDocument() {
  auto lines = std::make_shared<std::vector<std::string>>();
  auto document = std::make_unique<SVGFigurerDocument>(environmentWithReport(lines));
  return show(std::move(document), std::move(lines), {}, {});
}

DocumentWindow* WindowManager::openFile(const QString& path) {
  const QString absolute = QFileInfo(path).absoluteFilePath();
  for (DocumentWindow* window : windows()) {
    if (window->origin().documentPath == absolute) {
      window->raise();
      window->activateWindow();
      return window;
    }
  }
  auto lines = std::make_shared<std::vector<std::string>>();
  auto request = SVGFigurerApp::FileReadRequest::fromPath(absolute.toStdString());
  const auto type = request.contentType;
  auto opened = SVGFigurerDocument::open(request, environmentWithReport(lines));
  if (auto* error = std::get_if<SVGFigurerApp::FileReadError>(&opened)) {
    dialogs_.showError(nullptr, tr("Could not open"),
                       tr("The document “%1” could not be opened. %2")
                           .arg(QFileInfo(absolute).fileName(), QString::fromStdString(error->message)));
    return nullptr;
  }
  auto& document = std::get<std::unique_ptr<SVGFigurerDocument>>(opened);
  const bool isDocument = type == SVGFigurerApp::ContentType::document;
  if (isDocument) noteRecentDocument(absolute);
  return show(std::move(document), std::move(lines), isDocument ? absolute : QString(),
              isDocument ? QString() : absolute);
}

void WindowManager::openWithDialog(QWidget* parent) {
  const QString path = dialogs_.openFileName(parent);
  if (!path.isEmpty()) openFile(path);
}

void WindowManager::pickSample(std::string_view svg, DocumentWindow* focused) {
  SVGFigurerApp::pickSample(svg, focused ? &focused->document() : nullptr, environment_,
                            [this] { (void)openUntitledDocument(); });
}

void WindowManager::showAbout() { AboutWindow::showAbout(); }

void WindowManager::openIconSite() { dialogs_.openURL(QString::fromLatin1(iconMonstrURL)); }

bool WindowManager::closeAll() {
  for (DocumentWindow* window : windows()) {
    if (!window->close()) return false;
  }
  return true;
}

void WindowManager::quit() {
  if (closeAll()) QApplication::quit();
}

std::vector<DocumentWindow*> WindowManager::windows() const {
  std::vector<DocumentWindow*> open;
  for (const auto& window : windows_) {
    if (window) open.push_back(window.data());
  }
  return open;
}

DocumentWindow* WindowManager::focusedWindow() const {
  return qobject_cast<DocumentWindow*>(QApplication::activeWindow());
}

bool WindowManager::useVerticalUI() const {
  return SVGFigurerWindow::useVerticalUI(environment_.defaults->store());
}

void WindowManager::setUseVerticalUI(bool value) {
  SVGFigurerWindow::setUseVerticalUI(environment_.defaults->store(), value);
  for (DocumentWindow* window : windows()) window->setStackVertically(value);
}

QStringList WindowManager::recentDocuments() const {
  return SVGFigurerWindow::recentDocuments(environment_.defaults->store());
}

void WindowManager::noteRecentDocument(const QString& path) {
  SVGFigurerWindow::noteRecentDocument(environment_.defaults->store(), path);
  for (DocumentWindow* window : windows()) window->refreshRecentDocuments();
}

void WindowManager::clearRecentDocuments() {
  SVGFigurerWindow::clearRecentDocuments(environment_.defaults->store());
  for (DocumentWindow* window : windows()) window->refreshRecentDocuments();
}

void WindowManager::startObservingStore() {
  if (watcher_) return;
  const QString folder = QString::fromStdString(environment_.defaults->store().folder().string());
  // The folder must exist to be watched; the store writes each key by renaming a new file
  // into it, which the folder's watch reports.
  QDir().mkpath(folder);
  watcher_ = new QFileSystemWatcher(this);
  watcher_->addPath(folder);
  connect(watcher_, &QFileSystemWatcher::directoryChanged, this, [this] { storeDidChange(); });
}

void WindowManager::storeDidChange() {
  environment_.defaults->storeDidChange();
  const bool vertical = useVerticalUI();
  for (DocumentWindow* window : windows()) {
    if (window->stacksVertically() != vertical) window->setStackVertically(vertical);
    window->refreshRecentDocuments();
  }
}

}  // namespace SVGFigurerWindow
