// The rendered preview: the SVG text in its preview page, shown by a web engine that runs no
// script and loads nothing but the page itself. The SVG may come from anywhere.
#pragma once

#include <QUrl>
#include <QWidget>
#include <string>
#include <string_view>

class QWebEngineView;

namespace FigurerUtilities {

class PreviewPage;

class SVGWebView : public QWidget {
  Q_OBJECT

 public:
  // Registers the URL scheme the pages are served under. The web engine reads its schemes once,
  // so the program's main must call this before it creates the QApplication.
  static void registerPreviewScheme();

  explicit SVGWebView(QWidget* parent = nullptr);
  ~SVGWebView() override;

  // Builds the preview page for the SVG text and loads it anew, on every call.
  void setSVG(std::string_view svg);
  // The page last set: what the engine shows once pageLoaded(true) came.
  const std::string& page() const { return page_; }

  // Requests of this view's pages that were refused: subresources, navigations and windows.
  int refusedRequestCount() const { return refusedRequests_; }
  QWebEngineView* webView() const { return view_; }

 Q_SIGNALS:
  // The page last set finished loading; a load superseded by a newer one reports nothing.
  void pageLoaded(bool ok);
  void requestRefused(const QUrl& url);

 private:
  void noteRefused(const QUrl& url, const QUrl& firstPartyUrl);

  std::string page_;
  QString urlPrefix_;  // every page of this view is served under it, one URL per load
  QUrl pageUrl_;
  quint64 loadCount_ = 0;
  int refusedRequests_ = 0;
  QWebEngineView* view_;
  PreviewPage* webPage_;
};

}  // namespace FigurerUtilities
