// A picture of a window as the screen shows it, taken once its preview has rendered: for the
// README, bug reports and the end-to-end check that the web engine really draws.
#pragma once

#include <QRect>
#include <QString>
#include <functional>

namespace SVGFigurerWindow {

class DocumentWindow;

struct Screenshot {
  bool saved = false;
  // Where the preview sits in the picture.
  QRect previewArea;
};

// Waits for the preview's page to load (at most `timeoutMs`), lets it paint, grabs the window
// from the screen into a PNG at `path` and calls `done`.
void takeScreenshotWhenRendered(DocumentWindow& window, const QString& path,
                                std::function<void(const Screenshot&)> done, int timeoutMs = 20000);

}  // namespace SVGFigurerWindow
