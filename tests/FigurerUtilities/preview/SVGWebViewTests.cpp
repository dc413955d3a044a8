// The preview in a real web engine: it shows the page it was given, draws it, and neither runs
// the SVG's script nor lets it reach a file or the network.
#include <gtest/gtest.h>

#include <sys/inotify.h>
#include <unistd.h>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <memory>
#include <string>

#include "FigurerUtilities/SVGPreview.h"
#include "FigurerUtilities/SVGWebView.h"

using FigurerUtilities::SVGWebView;

namespace {

constexpr int kLoadTimeoutMs = 15000;
// How long a request that should never happen is given to show up after the load.
constexpr int kQuietPeriodMs = 800;

struct ShownPreview {
  std::unique_ptr<SVGWebView> view = std::make_unique<SVGWebView>();
  bool loaded = false;
};

ShownPreview showPreview(std::string_view svg) {
  ShownPreview shown;
  shown.view->resize(200, 200);
  shown.view->show();
  QSignalSpy spy(shown.view.get(), &SVGWebView::pageLoaded);
  shown.view->setSVG(svg);
  shown.loaded = spy.wait(kLoadTimeoutMs) && spy.count() == 1 && spy.at(0).at(0).toBool();
  return shown;
}

TEST(SVGWebView, LoadsOnlyTheLatestPage) {
  SVGWebView view;
  QSignalSpy spy(&view, &SVGWebView::pageLoaded);
  const std::string first = "<svg width=\"10\" height=\"10\"><title>first</title></svg>";
  // Not ASCII: the page must be read as UTF-8.
  const std::string second = "<svg viewBox=\"0 0 5 5\"><desc>Grüße</desc></svg>";
  view.setSVG(first);
  view.setSVG(second);
  EXPECT_EQ(view.page(), FigurerUtilities::previewPage(second));
  ASSERT_TRUE(spy.wait(kLoadTimeoutMs));
  EXPECT_FALSE(spy.wait(300)) << "the superseded load reported too";
  ASSERT_EQ(spy.count(), 1);
  EXPECT_TRUE(spy.at(0).at(0).toBool());
  EXPECT_EQ(view.refusedRequestCount(), 0);
  QString shownHTML;
  view.webView()->page()->toHtml([&](const QString& html) { shownHTML = html; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return !shownHTML.isEmpty(); }, kLoadTimeoutMs));
  EXPECT_TRUE(shownHTML.contains(QString::fromUtf8("<desc>Grüße</desc>")))
      << shownHTML.toStdString();
}

TEST(SVGWebView, RunsNoScriptAndMakesNoNetworkConnection) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  int connections = 0;
  QObject::connect(&server, &QTcpServer::newConnection, [&] {
    ++connections;
    delete server.nextPendingConnection();
  });
  const QString svg =
      R"(<svg xmlns="http://www.w3.org/2000/svg" onload="document.title='ran'">
         <script>document.title='ran'</script>
         <style>rect { fill: url(ORIGIN/f.svg#p) }</style>
         <image href="ORIGIN/x.png" width="10" height="10"/></svg>
         <script>document.title='ran'</script><img src="x" onerror="document.title='ran'">
         <iframe src="ORIGIN/frame"></iframe><meta http-equiv="refresh" content="0; url=ORIGIN/away">
         <link rel="preconnect" href="ORIGIN"><link rel="prefetch" href="ORIGIN/next">
         <link rel="stylesheet" href="ORIGIN/style.css">)";
  const QString origin = QStringLiteral("http://127.0.0.1:%1").arg(server.serverPort());
  const ShownPreview shown = showPreview(QString(svg).replace("ORIGIN", origin).toStdString());
  ASSERT_TRUE(shown.loaded);
  QWebEnginePage* page = shown.view->webView()->page();
  EXPECT_FALSE(
      QTest::qWaitFor([&] { return page->title() == "ran" || connections > 0; }, kQuietPeriodMs));
  EXPECT_NE(page->title(), "ran");
  EXPECT_EQ(connections, 0);
  EXPECT_GE(shown.view->refusedRequestCount(), 1);
}

// A file URL is refused by the engine before any request is made, so the proof that it was not
// read is that nobody opened the file; a relative reference reaches the request guard.
TEST(SVGWebView, ReadsNoLocalFile) {
  const QString path = QDir::temp().filePath("svgfigurer-preview-test.png");
  QImage image(4, 4, QImage::Format_RGB32);
  image.fill(Qt::red);
  ASSERT_TRUE(image.save(path));
  const int watcher = inotify_init1(IN_NONBLOCK);
  ASSERT_GE(watcher, 0);
  ASSERT_GE(inotify_add_watch(watcher, path.toLocal8Bit().constData(), IN_OPEN | IN_ACCESS), 0);
  const QString svg = R"(<svg xmlns="http://www.w3.org/2000/svg">
      <image href="file://PATH" width="10" height="10"/>
      <image href="svgfigurer-preview-test.png" width="10" height="10"/></svg>)";
  const ShownPreview shown = showPreview(QString(svg).replace("PATH", path).toStdString());
  ASSERT_TRUE(shown.loaded);
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return shown.view->refusedRequestCount() >= 1; }, kQuietPeriodMs));
  QTest::qWait(kQuietPeriodMs);
  char events[4096];
  EXPECT_LT(read(watcher, events, sizeof events), 0) << "the preview opened " << path.toStdString();
  close(watcher);
  QFile::remove(path);
}

TEST(SVGWebView, DrawsTheDefaultDocument) {
  const ShownPreview shown = showPreview(
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 100 100\">"
      "<rect x=\"10\" y=\"10\" width=\"80\" height=\"80\" fill=\"gold\" stroke=\"blue\""
      " stroke-width=\"4\"/></svg>");
  ASSERT_TRUE(shown.loaded);
  const auto isGold = [](QColor c) {
    return c.red() > 230 && c.green() > 190 && c.green() < 230 && c.blue() < 40;
  };
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        const QImage image = shown.view->grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
          for (int x = 0; x < image.width(); ++x) {
            if (isGold(image.pixelColor(x, y))) return true;
          }
        }
        return false;
      },
      kLoadTimeoutMs));
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (::testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  // Headless and as root the engine needs no display, no GPU and no sandbox.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsEmpty("QTWEBENGINE_CHROMIUM_FLAGS")) {
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox --disable-gpu");
  }
  SVGWebView::registerPreviewScheme();
  QApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
