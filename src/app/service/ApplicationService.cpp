#include "SVGFigurerService/ApplicationService.h"

#include <QDBusConnectionInterface>
#include <QFileInfo>
#include <QMetaObject>
#include <QThread>
#include <algorithm>
#include <memory>
#include <vector>

#include "BusAdaptors.h"
#include "SVGFigurerApp/DocumentFile.h"

namespace SVGFigurerService {

ApplicationService::ApplicationService(SVGFigurerApp::DocumentEnvironment environment,
                                       SVGFigurerApp::DocumentController& controller,
                                       std::function<void()> activateWindow, QObject* parent)
    : QObject(parent),
      service_(std::move(environment), controller),
      activateWindow_(std::move(activateWindow)),
      connection_(QString()) {
  // Each handed file gets a thread of its own up to this many, so that a few files convert
  // side by side even on a small machine; the rest wait their turn.
  pool_.setMaxThreadCount(std::max(4, QThread::idealThreadCount()));
  new ConversionServiceAdaptor(this);
  new FreedesktopApplicationAdaptor(this);
}

ApplicationService::~ApplicationService() {
  pool_.waitForDone();
}

bool ApplicationService::registerService(QDBusConnection connection) {
  auto& log = *service_.environment().log;
  if (!connection.isConnected()) {
    log.error("could not register service, no session bus:",
              connection.lastError().message().toStdString());
    return false;
  }
  if (!connection.registerObject(QString::fromLatin1(objectPath), this,
                                 QDBusConnection::ExportAdaptors)) {
    log.error("could not register service object:", std::string(objectPath));
    return false;
  }
  if (!connection.registerService(QString::fromLatin1(busName))) {
    connection.unregisterObject(QString::fromLatin1(objectPath));
    log.error("could not register service name:", std::string(busName),
              connection.lastError().message().toStdString());
    return false;
  }
  connection_ = connection;
  service_.didRegister();
  return true;
}

void ApplicationService::openFiles(const QStringList& paths) {
  QStringList addresses;
  for (const QString& path : paths) {
    const std::filesystem::path absolute = QFileInfo(path).absoluteFilePath().toStdString();
    addresses.append(QString::fromStdString(SVGFigurerApp::addressForLocalPath(absolute)));
  }
  openAddresses(addresses);
}

void ApplicationService::openAddresses(const QStringList& addresses) {
  std::vector<std::string> list;
  list.reserve(std::size_t(addresses.size()));
  for (const QString& address : addresses) {
    const auto path = SVGFigurerApp::localPathForAddress(address.toStdString());
    if (documentFileOpener_ && path &&
        SVGFigurerApp::contentTypeForPath(*path) == SVGFigurerApp::ContentType::document) {
      documentFileOpener_(QString::fromStdString(path->string()));
    } else {
      list.push_back(address.toStdString());
    }
  }
  if (list.empty() && !addresses.isEmpty()) return;
  for (auto& file : service_.openURLs(list)) {
    auto handed = std::make_shared<SVGFigurerApp::HandedFile>(std::move(file));
    pool_.start([this, handed, hook = backgroundReadHook_] {
      if (hook) hook(handed->path.string());
      auto content = std::make_shared<std::optional<SVGFigurerApp::HandedFileContent>>(
          SVGFigurerApp::readHandedFile(*handed));
      // Queued to this object's thread; the destructor waits for the pool, so `this` outlives
      // the post, and an event still queued at destruction is discarded with the object.
      QMetaObject::invokeMethod(
          this,
          [this, handed, content] {
            if (*content) service_.openHandedFile(std::move(**content), handed->address);
            Q_EMIT handedFileFinished(QString::fromStdString(handed->address));
          },
          Qt::QueuedConnection);
    });
  }
}

void ApplicationService::activate() {
  if (activateWindow_) activateWindow_();
}

bool startedByBusActivation() {
  return qEnvironmentVariable("DBUS_STARTER_BUS_TYPE") == QLatin1String("session");
}

}  // namespace SVGFigurerService
