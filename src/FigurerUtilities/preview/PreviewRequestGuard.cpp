#include "PreviewRequestGuard.h"

#include "CoreS/Logger.h"
#include "PreviewScheme.h"

namespace FigurerUtilities {

PreviewRequestGuard::PreviewRequestGuard(const PreviewSchemeHandler& pages, QObject* parent)
    : QWebEngineUrlRequestInterceptor(parent), pages_(pages) {}

void PreviewRequestGuard::interceptRequest(QWebEngineUrlRequestInfo& info) {
  if (info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame &&
      pages_.isPublished(info.requestUrl())) {
    return;
  }
  info.block(true);
  const std::string url = info.requestUrl().toDisplayString().toStdString();
  CoreS::defaultLogger().info("preview refused request", url);
  Q_EMIT refused(info.requestUrl(), info.firstPartyUrl());
}

}  // namespace FigurerUtilities
