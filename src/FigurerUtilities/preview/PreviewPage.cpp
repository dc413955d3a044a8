#include "PreviewPage.h"

#include "CoreS/Logger.h"

namespace FigurerUtilities {

bool PreviewPage::acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) {
  if (isMainFrame && url == pageUrl_) return true;
  const std::string shown = url.toDisplayString().toStdString();
  CoreS::defaultLogger().info("preview refused navigation", shown);
  Q_EMIT navigationRefused(url);
  return false;
}

QWebEnginePage* PreviewPage::createWindow(WebWindowType) {
  Q_EMIT navigationRefused(QUrl());
  return nullptr;
}

void PreviewPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& message,
                                           int, const QString&) {
  const std::string text = message.toStdString();
  CoreS::defaultLogger().info("preview page:", text);
}

}  // namespace FigurerUtilities
