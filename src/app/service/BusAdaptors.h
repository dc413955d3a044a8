// The two bus interfaces of ApplicationService. Each slot is one bus method; the trailing
// QDBusMessage is the call itself, which an error reply answers.
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace SVGFigurerService {

class ApplicationService;

class ConversionServiceAdaptor : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "net.quivane.SVGFigurer.Service")

 public:
  explicit ConversionServiceAdaptor(ApplicationService* owner);

 public Q_SLOTS:
  void OpenSVG(const QString& svg, const QDBusMessage& message);
  QString SvgToView(const QString& svg, const QDBusMessage& message);

 private:
  ApplicationService* owner_;
};

class FreedesktopApplicationAdaptor : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  explicit FreedesktopApplicationAdaptor(ApplicationService* owner);

 public Q_SLOTS:
  void Activate(const QVariantMap& platformData);
  void Open(const QStringList& uris, const QVariantMap& platformData);
  // The program declares no actions; a call is accepted and does nothing.
  void ActivateAction(const QString& actionName, const QVariantList& parameter,
                      const QVariantMap& platformData);

 private:
  ApplicationService* owner_;
};

}  // namespace SVGFigurerService
