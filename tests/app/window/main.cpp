// The window tests need a QApplication, the preview's page scheme registered before it, and
// settings of their own: the user's are never touched.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <QApplication>

#include "FigurerUtilities/SVGWebView.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsEmpty("QTWEBENGINE_CHROMIUM_FLAGS"))
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox --disable-gpu");
  char folder[] = "/tmp/svgfigurer-window-test-XXXXXX";
  if (::mkdtemp(folder) != nullptr) qputenv("XDG_CONFIG_HOME", folder);
  FigurerUtilities::SVGWebView::registerPreviewScheme();
  QApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
