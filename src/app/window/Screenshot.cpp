#include "SVGFigurerWindow/Screenshot.h"

#include <QPixmap>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <memory>

#include "FigurerUtilities/SVGWebView.h"
#include "SVGFigurerWindow/DocumentWindow.h"

namespace SVGFigurerWindow {

namespace {

// Time for the compositor to put the rendered page on the screen after the load ends.
constexpr int paintDelayMs = 800;

Screenshot grab(DocumentWindow& window, const QString& path) {
  Screenshot shot;
  QScreen* screen = window.screen();
  const QPixmap pixmap = screen ? screen->grabWindow(window.winId()) : window.grab();
  shot.saved = !pixmap.isNull() && pixmap.save(path, "PNG");
  auto& preview = window.preview();
  const QPoint origin = preview.mapTo(&window, QPoint(0, 0));
  const qreal scale = pixmap.devicePixelRatio();
  shot.previewArea = QRect(origin * scale, preview.size() * scale);
  return shot;
}

}  // namespace

void takeScreenshotWhenRendered(DocumentWindow& window, const QString& path,
                                std::function<void(const Screenshot&)> done, int timeoutMs) {
  QPointer<DocumentWindow> target(&window);
  auto finished = std::make_shared<bool>(false);
  auto shoot = [target, path, done, finished] {
    if (*finished) return;
    *finished = true;
    QTimer::singleShot(paintDelayMs, [target, path, done] {
      done(target ? grab(*target, path) : Screenshot{});
    });
  };
  QObject::connect(&window.preview(), &FigurerUtilities::SVGWebView::pageLoaded, &window,
                   [shoot](bool) { shoot(); });
  QTimer::singleShot(timeoutMs, &window, shoot);
}

}  // namespace SVGFigurerWindow
