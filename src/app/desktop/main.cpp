// svgfigurer-app: the desktop program. One window per document; files named on the command
// line open as new documents.
#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <unistd.h>

#include <cstdio>

#include "FigurerUtilities/SVGWebView.h"
#include "Highlight/HighlightJS.h"
#include "SVGFigurerApp/ConfigurationDefaults.h"
#include "SVGFigurerApp/SVGFigurerDocument.h"
#include "SVGFigurerApp/ExampleCatalogue.h"
#include "SVGFigurerWindow/AboutWindow.h"
#include "SVGFigurerWindow/DocumentWindow.h"
#include "SVGFigurerWindow/Screenshot.h"
#if SVGFIGURER_HAS_SERVICE
#include "SVGFigurerService/ApplicationService.h"
#endif
#include "SVGFigurerWindow/WindowManager.h"

int main(int argc, char** argv) {
  // Log and report lines reach a file or pipe as they happen, not when a buffer fills.
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  // The web engine's sandbox refuses to start for root; the preview runs no script and loads
  // nothing from outside, so it does without.
  if (::geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  // The preview's page scheme must be known before the application object exists.
  FigurerUtilities::SVGWebView::registerPreviewScheme();
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("SVGFigurer"));
  QApplication::setApplicationVersion(QStringLiteral(SVGFIGURER_VERSION));
  QApplication::setOrganizationDomain(QStringLiteral("net.quivane"));
  QApplication::setDesktopFileName(QStringLiteral("net.quivane.SVGFigurer"));

  QCommandLineParser options;
  options.setApplicationDescription(
      QStringLiteral("SVGFigurer: write SVG, see the SwiftUI code that draws it and a preview."));
  options.addHelpOption();
  options.addVersionOption();
  options.addPositionalArgument(QStringLiteral("files"),
                                QStringLiteral("SVG files to open as new documents, or "
                                               ".svgfigurer documents to open."),
                                QStringLiteral("[files...]"));
  const QCommandLineOption sampleOption(
      QStringLiteral("sample"), QStringLiteral("Open a new document with the sample <name>."),
      QStringLiteral("name"));
  const QCommandLineOption screenshotOption(
      QStringLiteral("screenshot"),
      QStringLiteral("Once the preview has rendered, save a picture of the window to <png>, "
                     "print where the preview is in it, and quit."),
      QStringLiteral("png"));
  options.addOption(sampleOption);
  options.addOption(screenshotOption);
  options.process(app);

  QStringList files;
  for (const QString& file : options.positionalArguments())
    files.append(QFileInfo(file).absoluteFilePath());

#if SVGFIGURER_HAS_SERVICE
  // One instance per session: a second launch hands its files to the first and ends.
  if (!options.isSet(screenshotOption) && SVGFigurerService::handOffToRunningInstance(files))
    return 0;
#endif
  auto highlighter = Highlight::HighlightJS::shared();
  SVGFigurerWindow::WindowManager manager(SVGFigurerApp::DocumentEnvironment::shared(),
                                          SVGFigurerWindow::WindowDialogs::standard(), highlighter);
  SVGFigurerWindow::AboutWindow::shared();
  manager.startObservingStore();
#if SVGFIGURER_HAS_SERVICE
  SVGFigurerService::ApplicationService service(manager.environment(), manager, [&manager] {
    if (auto windows = manager.windows(); !windows.empty()) {
      windows.back()->raise();
      windows.back()->activateWindow();
    } else {
      manager.newDocument();
    }
  });
  service.setDocumentFileOpener([&manager](const QString& path) { manager.openFile(path); });
  service.registerService();
  // Started by the bus for a conversion, the program waits without a window.
  const bool quietStart = SVGFigurerService::startedByBusActivation();
  if (quietStart) QApplication::setQuitOnLastWindowClosed(false);
#else
  const bool quietStart = false;
#endif

  if (options.isSet(sampleOption)) {
    const auto sample = SVGFigurerApp::exampleNamed(options.value(sampleOption).toStdString());
    if (!sample) {
      std::fprintf(stderr, "svgfigurer-app: no sample named \"%s\"; the samples are:\n",
                   qPrintable(options.value(sampleOption)));
      for (const auto& known : SVGFigurerApp::exampleSVGs())
        std::fprintf(stderr, "  %.*s\n", static_cast<int>(known.name.size()), known.name.data());
      return 2;
    }
    manager.pickSample(sample->svg, nullptr);
  } else if (!files.isEmpty()) {
#if SVGFIGURER_HAS_SERVICE
    service.openFiles(files);
#else
    for (const QString& file : files) manager.openFile(file);
#endif
  } else if (!quietStart) {
    manager.newDocument();
  }

  if (options.isSet(screenshotOption)) {
    const auto windows = manager.windows();
    if (windows.empty()) return 1;
    int status = 1;
    SVGFigurerWindow::takeScreenshotWhenRendered(
        *windows.back(), options.value(screenshotOption),
        [&status](const SVGFigurerWindow::Screenshot& shot) {
          const QRect area = shot.previewArea;
          std::printf("preview: %d %d %d %d\n", area.x(), area.y(), area.width(), area.height());
          std::fflush(stdout);
          status = shot.saved ? 0 : 1;
          QApplication::exit(status);
        });
    QApplication::exec();
    return status;
  }
  return QApplication::exec();
}
