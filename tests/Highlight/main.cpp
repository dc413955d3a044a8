// The highlighter's engine needs an application object, and the text storage needs fonts, so the
// tests run inside a headless QGuiApplication.
#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
