#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QTemporaryDir>

#include "SVGFigurerWindow/AboutWindow.h"

namespace {

using SVGFigurerApp::DefaultsStore;
using SVGFigurerWindow::AboutInfo;
using SVGFigurerWindow::AboutWindow;

const AboutInfo info{"SVGFigurer", "1.2", "34"};

TEST(AboutWindow, ShowsNameVersionAndCredits) {
  QTemporaryDir folder;
  AboutWindow window(info, DefaultsStore(folder.path().toStdString()));
  EXPECT_EQ(window.windowTitle(), "About SVGFigurer");
  EXPECT_EQ(window.size(), QSize(320, 460));

  // Plain lines are matched whole; links by their title and address.
  const std::vector<std::tuple<const char*, QString, QString>> labels = {
      {"aboutTitle", "About SVGFigurer", ""},
      {"aboutVersion", "Version: 1.2 (34)", ""},
      {"usesTitle", "Uses and embeds:", ""},
      {"highlightJSLink", ">Highligh.js</a>", "https://highlightjs.org"},
      {"inspiredTitle", "Some code inspired by:", ""},
      {"lunasvgLink", ">lunasvg</a>", "https://github.com/sammycage/lunasvg"},
      {"nlohmannJSONLink", ">nlohmann/json</a>", "https://github.com/nlohmann/json"},
  };
  for (const auto& [name, text, address] : labels) {
    const QLabel* label = window.findChild<QLabel*>(name);
    ASSERT_NE(label, nullptr) << name;
    if (address.isEmpty()) {
      EXPECT_EQ(label->text(), text);
    } else {
      EXPECT_TRUE(label->text().contains(text) && label->text().contains("href=\"" + address))
          << label->text().toStdString();
      EXPECT_TRUE(label->openExternalLinks()) << name;
    }
  }
}

TEST(AboutWindow, OpensCentredAndClosingHidesAndKeepsItsPlace) {
  QTemporaryDir folder;
  const DefaultsStore store(folder.path().toStdString());
  QPointer<AboutWindow> first = new AboutWindow(info, store);
  EXPECT_EQ(first->frameGeometry().center(),
            QGuiApplication::primaryScreen()->availableGeometry().center());

  first->show();
  first->move(40, 50);
  first->close();
  ASSERT_FALSE(first.isNull());
  EXPECT_FALSE(first->isVisible());
  ASSERT_TRUE(store.data(SVGFigurerWindow::aboutGeometryKey).has_value());
  EXPECT_EQ(AboutWindow(info, store).geometry(), first->geometry());
  delete first;
}

TEST(AboutWindow, SharedWindowIsOnePerProcess) {
  QTemporaryDir configuration;
  qputenv("XDG_CONFIG_HOME", configuration.path().toUtf8());
  AboutWindow& window = AboutWindow::shared();
  EXPECT_EQ(&window, &AboutWindow::shared());
  EXPECT_EQ(window.info().name, QGuiApplication::applicationDisplayName());
  EXPECT_FALSE(window.info().shortVersion.isEmpty());
}

}  // namespace
