#include "BusAdaptors.h"

#include <QDBusConnection>

#include "SVGFigurerService/ApplicationService.h"

namespace SVGFigurerService {

namespace {

void replyWithError(const ApplicationService& owner, const QDBusMessage& message,
                    const SVGFigurerApp::ServiceError& error) {
  message.setDelayedReply(true);
  owner.connection().send(message.createErrorReply(QString::fromStdString(error.qualifiedName()),
                                                   QString::fromStdString(error.message())));
}

}  // namespace

ConversionServiceAdaptor::ConversionServiceAdaptor(ApplicationService* owner)
    : QDBusAbstractAdaptor(owner), owner_(owner) {}

void ConversionServiceAdaptor::OpenSVG(const QString& svg, const QDBusMessage& message) {
  if (auto error = owner_->conversionService().openSVG(svg.toStdString())) {
    replyWithError(*owner_, message, *error);
  }
}

QString ConversionServiceAdaptor::SvgToView(const QString& svg, const QDBusMessage& message) {
  auto result = owner_->conversionService().svgToView(svg.toStdString());
  if (auto* error = std::get_if<SVGFigurerApp::ServiceError>(&result)) {
    replyWithError(*owner_, message, *error);
    return {};
  }
  return QString::fromStdString(std::get<std::string>(result));
}

FreedesktopApplicationAdaptor::FreedesktopApplicationAdaptor(ApplicationService* owner)
    : QDBusAbstractAdaptor(owner), owner_(owner) {}

void FreedesktopApplicationAdaptor::Activate(const QVariantMap&) {
  owner_->activate();
}

void FreedesktopApplicationAdaptor::Open(const QStringList& uris, const QVariantMap&) {
  owner_->openAddresses(uris);
}

void FreedesktopApplicationAdaptor::ActivateAction(const QString&, const QVariantList&,
                                                   const QVariantMap&) {}

}  // namespace SVGFigurerService
