// The URL scheme the preview pages are served under, and the handler that serves them. Each
// load gets a URL of its own; the handler answers only the URLs currently published.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

namespace FigurerUtilities {

inline constexpr char kPreviewScheme[] = "svgfigurer-preview";

void registerPreviewURLScheme();
bool previewURLSchemeRegistered();

class PreviewSchemeHandler final : public QWebEngineUrlSchemeHandler {
 public:
  using QWebEngineUrlSchemeHandler::QWebEngineUrlSchemeHandler;

  void publish(const QUrl& url, QByteArray page);
  void withdraw(const QUrl& url);
  bool isPublished(const QUrl& url) const;

  void requestStarted(QWebEngineUrlRequestJob* job) override;

 private:
  QHash<QString, QByteArray> pages_;
};

}  // namespace FigurerUtilities
