#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFileInfo>
#include <QVariantMap>

#include "SVGFigurerApp/ConversionService.h"
#include "SVGFigurerService/ApplicationService.h"

namespace SVGFigurerService {

namespace {

// Long enough for a busy first instance; a hung one must not keep the second launch forever.
constexpr int handOffTimeoutMilliseconds = 15000;

// Startup notification tokens from the launcher, so that the first instance may take focus.
QVariantMap platformData() {
  QVariantMap data;
  if (const QString id = qEnvironmentVariable("DESKTOP_STARTUP_ID"); !id.isEmpty()) {
    data.insert(QStringLiteral("desktop-startup-id"), id);
  }
  if (const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); !token.isEmpty()) {
    data.insert(QStringLiteral("activation-token"), token);
  }
  return data;
}

}  // namespace

bool handOffToRunningInstance(const QStringList& files) {
  // A connection of its own, so that a process that also serves (a test) can call itself.
  const QString connectionName = QStringLiteral("svgfigurer-hand-off");
  bool handedOff = false;
  {
    QDBusConnection bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
    const QString name = QString::fromLatin1(busName);
    if (bus.isConnected() && bus.interface() != nullptr &&
        bus.interface()->isServiceRegistered(name).value()) {
      QDBusMessage call;
      if (files.isEmpty()) {
        call = QDBusMessage::createMethodCall(name, QString::fromLatin1(objectPath),
                                              QString::fromLatin1(applicationInterface),
                                              QStringLiteral("Activate"));
        call << platformData();
      } else {
        QStringList addresses;
        for (const QString& file : files) {
          const std::filesystem::path absolute = QFileInfo(file).absoluteFilePath().toStdString();
          addresses.append(QString::fromStdString(SVGFigurerApp::addressForLocalPath(absolute)));
        }
        call = QDBusMessage::createMethodCall(name, QString::fromLatin1(objectPath),
                                              QString::fromLatin1(applicationInterface),
                                              QStringLiteral("Open"));
        call << addresses << platformData();
      }
      const QDBusMessage reply = bus.call(call, QDBus::BlockWithGui, handOffTimeoutMilliseconds);
      handedOff = reply.type() == QDBusMessage::ReplyMessage;
    }
  }
  QDBusConnection::disconnectFromBus(connectionName);
  return handedOff;
}

}  // namespace SVGFigurerService
