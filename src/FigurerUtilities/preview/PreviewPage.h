// A web page that stays on the preview page it was given: it refuses every navigation to
// another URL, in any frame, and opens no windows.
#pragma once

#include <QUrl>
#include <QWebEnginePage>

namespace FigurerUtilities {

class PreviewPage final : public QWebEnginePage {
  Q_OBJECT

 public:
  using QWebEnginePage::QWebEnginePage;

  // The one URL the page may show; set before loading it.
  void setPageUrl(const QUrl& url) { pageUrl_ = url; }

 Q_SIGNALS:
  void navigationRefused(const QUrl& url);

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
  QWebEnginePage* createWindow(WebWindowType type) override;
  // The engine's own notes on the page (a refused resource, say) go to the log, not stderr.
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                int line, const QString& source) override;

 private:
  QUrl pageUrl_;
};

}  // namespace FigurerUtilities
