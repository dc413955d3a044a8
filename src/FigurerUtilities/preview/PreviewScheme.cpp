#include "PreviewScheme.h"

#include <QBuffer>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace FigurerUtilities {

void registerPreviewURLScheme() {
  if (previewURLSchemeRegistered()) return;
  QWebEngineUrlScheme scheme(kPreviewScheme);
  // Path syntax keeps relative references resolvable, so that they reach the request guard
  // and are refused there rather than failing unseen.
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Path);
  // Every page is its own opaque origin: pages share nothing with each other or with files.
  scheme.setFlags(QWebEngineUrlScheme::NoAccessAllowed);
  QWebEngineUrlScheme::registerScheme(scheme);
}

bool previewURLSchemeRegistered() {
  return QWebEngineUrlScheme::schemeByName(kPreviewScheme).name() == kPreviewScheme;
}

void PreviewSchemeHandler::publish(const QUrl& url, QByteArray page) {
  pages_.insert(url.toString(), std::move(page));
}

void PreviewSchemeHandler::withdraw(const QUrl& url) {
  pages_.remove(url.toString());
}

bool PreviewSchemeHandler::isPublished(const QUrl& url) const {
  return pages_.contains(url.toString());
}

void PreviewSchemeHandler::requestStarted(QWebEngineUrlRequestJob* job) {
  const auto page = pages_.constFind(job->requestUrl().toString());
  if (page == pages_.constEnd() || job->requestMethod() != "GET") {
    job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    return;
  }
  // The job owns the buffer; the bytes are shared with the published copy, not copied.
  auto* buffer = new QBuffer(job);
  buffer->setData(*page);
  buffer->open(QIODevice::ReadOnly);
  job->reply("text/html; charset=utf-8", buffer);
}

}  // namespace FigurerUtilities
