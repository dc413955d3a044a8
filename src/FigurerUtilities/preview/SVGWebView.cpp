#include "FigurerUtilities/SVGWebView.h"

#include <QVBoxLayout>
#include <QWebEngineLoadingInfo>
#include <QWebEngineView>

#include "CoreS/Logger.h"
#include "FigurerUtilities/SVGPreview.h"
#include "PreviewPage.h"
#include "PreviewProfile.h"
#include "PreviewRequestGuard.h"
#include "PreviewScheme.h"

namespace FigurerUtilities {
namespace {

quint64 nextViewNumber() {
  static quint64 count = 0;
  return ++count;
}

}  // namespace

void SVGWebView::registerPreviewScheme() {
  registerPreviewURLScheme();
}

SVGWebView::SVGWebView(QWidget* parent)
    : QWidget(parent),
      urlPrefix_(QStringLiteral("%1:%2/").arg(kPreviewScheme).arg(nextViewNumber())),
      view_(new QWebEngineView(this)) {
  PreviewEngine& engine = previewEngine();
  webPage_ = new PreviewPage(engine.profile, view_);
  view_->setPage(webPage_);
  view_->setContextMenuPolicy(Qt::NoContextMenu);
  view_->setAcceptDrops(false);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(view_);

  connect(webPage_, &QWebEnginePage::loadingChanged, this,
          [this](const QWebEngineLoadingInfo& info) {
            if (info.url() != pageUrl_) return;
            if (info.status() == QWebEngineLoadingInfo::LoadSucceededStatus) {
              Q_EMIT pageLoaded(true);
            } else if (info.status() == QWebEngineLoadingInfo::LoadFailedStatus) {
              Q_EMIT pageLoaded(false);
            }
          });
  connect(webPage_, &QWebEnginePage::renderProcessTerminated, this,
          [](QWebEnginePage::RenderProcessTerminationStatus status, int exitCode) {
            // The next setSVG starts a fresh renderer; until then the pane stays empty.
            if (status == QWebEnginePage::NormalTerminationStatus) return;
            CoreS::defaultLogger().error("preview renderer ended abnormally, exit code", exitCode);
          });
  connect(webPage_, &PreviewPage::navigationRefused, this,
          [this](const QUrl& url) { noteRefused(url, pageUrl_); });
  connect(engine.guard, &PreviewRequestGuard::refused, this, &SVGWebView::noteRefused);
}

SVGWebView::~SVGWebView() {
  PreviewEngine* engine = existingPreviewEngine();
  if (engine && !pageUrl_.isEmpty()) engine->pages->withdraw(pageUrl_);
}

void SVGWebView::setSVG(std::string_view svg) {
  page_ = previewPage(svg);
  PreviewSchemeHandler& pages = *previewEngine().pages;
  if (!pageUrl_.isEmpty()) pages.withdraw(pageUrl_);
  pageUrl_ = QUrl(urlPrefix_ + QString::number(++loadCount_));
  pages.publish(pageUrl_, QByteArray(page_.data(), qsizetype(page_.size())));
  webPage_->setPageUrl(pageUrl_);
  webPage_->load(pageUrl_);
}

void SVGWebView::noteRefused(const QUrl& url, const QUrl& firstPartyUrl) {
  if (!firstPartyUrl.toString().startsWith(urlPrefix_)) return;
  ++refusedRequests_;
  Q_EMIT requestRefused(url);
}

}  // namespace FigurerUtilities
