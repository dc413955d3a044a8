// The panels and the code editor need a QApplication for their widgets. The offscreen platform
// is the default so that the test listing at build time runs without a display too.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setApplicationName("SVGFigurer");
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
