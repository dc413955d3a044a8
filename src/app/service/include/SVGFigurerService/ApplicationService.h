// The desktop program on the session bus. One object at "/net/quivane/SVGFigurer" under the
// name "net.quivane.SVGFigurer" offers two interfaces:
//
//   net.quivane.SVGFigurer.Service  OpenSVG(s svg), SvgToView(s svg) -> s swift; a failure is
//                                   an error reply named "<domain>.<ShortName>" whose message
//                                   is "<description> (<code>)"
//   org.freedesktop.Application     Open(as uris, a{sv}), Activate(a{sv}), ActivateAction
//
// The program is single-instance per session: a second launch hands its files (or its
// activation) to the first and exits.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <functional>
#include <string>

#include "SVGFigurerApp/ConversionService.h"
#include "SVGFigurerApp/DocumentController.h"
#include "SVGFigurerApp/SVGFigurerDocument.h"

namespace SVGFigurerService {

inline constexpr char busName[] = "net.quivane.SVGFigurer";
inline constexpr char objectPath[] = "/net/quivane/SVGFigurer";
inline constexpr char serviceInterface[] = "net.quivane.SVGFigurer.Service";
inline constexpr char applicationInterface[] = "org.freedesktop.Application";

// If another instance owns the bus name, gives it `files` (Open with their file addresses,
// or Activate when there are none) and returns true: the caller should then exit. False when
// there is no session bus, no other instance, or it did not answer.
bool handOffToRunningInstance(const QStringList& files);

// True when the session bus started this process to deliver a call: no window is wanted
// until a call asks for one.
bool startedByBusActivation();

class ApplicationService : public QObject {
  Q_OBJECT

 public:
  // `activateWindow` runs for Activate: bring a window to the front, or open one.
  ApplicationService(SVGFigurerApp::DocumentEnvironment environment,
                     SVGFigurerApp::DocumentController& controller,
                     std::function<void()> activateWindow, QObject* parent = nullptr);
  // Waits for background reads still running; their results are dropped.
  ~ApplicationService() override;

  // Puts the object on the bus and takes the name; logs "did register service:". False
  // (with an error logged) when there is no bus or the name is taken.
  bool registerService(QDBusConnection connection = QDBusConnection::sessionBus());

  // Files named on the command line: each SVG is read and converted on a worker thread and
  // opens as a new untitled document when it is done, in order of completion.
  void openFiles(const QStringList& paths);
  // The same for addresses ("file:///..."), as Open delivers them.
  void openAddresses(const QStringList& addresses);
  void activate();
  // Where handed-in document files (".svgfigurer") go: they open in place through the
  // window manager rather than as converted SVG. Unset, they count as non-SVG files.
  void setDocumentFileOpener(std::function<void(const QString& path)> opener) {
    documentFileOpener_ = std::move(opener);
  }

  SVGFigurerApp::ConversionService& conversionService() { return service_; }
  const QDBusConnection& connection() const { return connection_; }

  // Runs on the worker thread before each file is read, with its path.
  void setBackgroundReadHookForTesting(std::function<void(const std::string& path)> hook) {
    backgroundReadHook_ = std::move(hook);
  }

 Q_SIGNALS:
  // After the main-thread end of one handed file, whether it opened or not.
  void handedFileFinished(const QString& address);

 private:
  SVGFigurerApp::ConversionService service_;
  std::function<void()> activateWindow_;
  std::function<void(const QString&)> documentFileOpener_;
  QDBusConnection connection_;
  std::function<void(const std::string&)> backgroundReadHook_;
  QThreadPool pool_;
};

}  // namespace SVGFigurerService
