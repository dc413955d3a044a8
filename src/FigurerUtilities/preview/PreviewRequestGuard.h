// The profile's request interceptor: every request but the main-frame load of a published page
// is blocked, whatever its scheme, so that a preview reads no file and touches no network.
#pragma once

#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace FigurerUtilities {

class PreviewSchemeHandler;

class PreviewRequestGuard final : public QWebEngineUrlRequestInterceptor {
  Q_OBJECT

 public:
  PreviewRequestGuard(const PreviewSchemeHandler& pages, QObject* parent);

  void interceptRequest(QWebEngineUrlRequestInfo& info) override;

 Q_SIGNALS:
  // firstPartyUrl is the page that made the request.
  void refused(const QUrl& url, const QUrl& firstPartyUrl);

 private:
  const PreviewSchemeHandler& pages_;
};

}  // namespace FigurerUtilities
