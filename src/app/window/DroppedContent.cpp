#include "SVGFigurerWindow/DroppedContent.h"

#include <QFile>
#include <QMimeData>
#include <QStringConverter>
#include <QUrl>

namespace SVGFigurerWindow {

namespace {

const QString svgMimeType = QStringLiteral("image/svg+xml");

std::optional<QString> droppedSVGFile(const QMimeData& data) {
  if (!data.hasUrls()) return std::nullopt;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile() && url.toLocalFile().endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive))
      return url.toLocalFile();
  }
  return std::nullopt;
}

}  // namespace

bool acceptsDrop(const QMimeData& data) {
  if (data.hasUrls()) return droppedSVGFile(data).has_value();
  return data.hasFormat(svgMimeType) || data.hasText();
}

std::optional<QByteArray> droppedBytes(const QMimeData& data) {
  if (data.hasUrls()) {
    const auto path = droppedSVGFile(data);
    if (!path) return std::nullopt;
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    return file.readAll();
  }
  if (data.hasFormat(svgMimeType)) return data.data(svgMimeType);
  // Text from another application arrives in a platform encoding; its UTF-8 form is what a
  // text drop means.
  if (data.hasFormat(QStringLiteral("text/plain;charset=utf-8")))
    return data.data(QStringLiteral("text/plain;charset=utf-8"));
  if (data.hasText()) return data.text().toUtf8();
  return std::nullopt;
}

std::optional<std::string> decodeDroppedText(const QByteArray& bytes) {
  auto decoder = QStringDecoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
  const QString text = decoder(bytes);
  if (decoder.hasError()) return std::nullopt;
  (void)text;
  return bytes.toStdString();
}

}  // namespace SVGFigurerWindow
