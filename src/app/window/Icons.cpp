#include "SVGFigurerWindow/Icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace SVGFigurerWindow {

namespace {

// The nearest names of the freedesktop theme (and of the two big desktop themes) for each.
QStringList themeNames(ToolbarIcon icon) {
  switch (icon) {
    case ToolbarIcon::sidebar:
      return {QStringLiteral("sidebar-show-symbolic"), QStringLiteral("view-left-pane"),
              QStringLiteral("sidebar-show")};
    case ToolbarIcon::sideBySide:
      return {QStringLiteral("view-split-left-right"), QStringLiteral("view-dual-symbolic")};
    case ToolbarIcon::stacked:
      return {QStringLiteral("view-split-top-bottom")};
    case ToolbarIcon::dropChanges:
      return {QStringLiteral("document-revert"), QStringLiteral("document-revert-symbolic")};
    case ToolbarIcon::copy:
      return {QStringLiteral("edit-copy"), QStringLiteral("edit-copy-symbolic")};
  }
  return {};
}

void drawFrame(QPainter& p, const QRectF& r) { p.drawRoundedRect(r, 2, 2); }

QPixmap draw(ToolbarIcon icon, int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(size / 24.0, size / 24.0);
  QPen pen(QColor(0x45, 0x45, 0x45), 1.6);
  pen.setJoinStyle(Qt::RoundJoin);
  pen.setCapStyle(Qt::RoundCap);
  p.setPen(pen);
  const QRectF box(3, 4, 18, 16);
  switch (icon) {
    case ToolbarIcon::sidebar:
      drawFrame(p, box);
      p.fillRect(QRectF(3.8, 4.8, 5.5, 14.4), QColor(0x45, 0x45, 0x45, 90));
      p.drawLine(QPointF(9.5, 4), QPointF(9.5, 20));
      break;
    case ToolbarIcon::sideBySide:
      drawFrame(p, box);
      p.drawLine(QPointF(12, 4), QPointF(12, 20));
      break;
    case ToolbarIcon::stacked:
      drawFrame(p, box);
      p.drawLine(QPointF(3, 12), QPointF(21, 12));
      break;
    case ToolbarIcon::dropChanges: {
      QPainterPath page;
      page.moveTo(6, 3);
      page.lineTo(14, 3);
      page.lineTo(18, 7);
      page.lineTo(18, 21);
      page.lineTo(6, 21);
      page.closeSubpath();
      p.drawPath(page);
      p.drawLine(QPointF(12, 8), QPointF(12, 17));
      p.drawLine(QPointF(9, 14), QPointF(12, 17));
      p.drawLine(QPointF(15, 14), QPointF(12, 17));
      break;
    }
    case ToolbarIcon::copy:
      drawFrame(p, QRectF(8, 8, 12, 13));
      p.drawPolyline(QPolygonF({QPointF(5, 16), QPointF(4, 16), QPointF(4, 3), QPointF(15, 3),
                                QPointF(15, 5)}));
      break;
  }
  return pixmap;
}

}  // namespace

QIcon bundledIcon(ToolbarIcon icon) {
  QIcon result;
  for (int size : {16, 22, 24, 32, 48}) result.addPixmap(draw(icon, size));
  return result;
}

QIcon toolbarIcon(ToolbarIcon icon) {
  for (const QString& name : themeNames(icon)) {
    if (QIcon::hasThemeIcon(name)) return QIcon::fromTheme(name);
  }
  return bundledIcon(icon);
}

}  // namespace SVGFigurerWindow
