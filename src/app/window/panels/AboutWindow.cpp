#include "SVGFigurerWindow/AboutWindow.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>
#include <string>

#include "CoreS/Logger.h"
#include "SVGFigurerApp/ConfigurationDefaults.h"

namespace SVGFigurerWindow {

namespace {

QLabel* addLabel(QVBoxLayout* column, const char* objectName, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(objectName);
  label->setAlignment(Qt::AlignHCenter);
  label->setWordWrap(true);
  column->addWidget(label);
  return label;
}

QLabel* addLink(QVBoxLayout* column, const char* objectName, const QString& title,
                const QString& address) {
  auto* label = addLabel(column, objectName,
                         QString("<a href=\"%1\">%2</a>").arg(address, title.toHtmlEscaped()));
  label->setTextFormat(Qt::RichText);
  label->setTextInteractionFlags(Qt::TextBrowserInteraction);
  label->setOpenExternalLinks(true);
  return label;
}

QPointer<AboutWindow>& sharedWindow() {
  static QPointer<AboutWindow> window;
  return window;
}

}  // namespace

AboutInfo AboutInfo::fromApplication() {
  QString version = QCoreApplication::applicationVersion();
  if (version.isEmpty()) version = SVGFIGURER_VERSION;
  return {QGuiApplication::applicationDisplayName(), version, SVGFIGURER_BUILD_NUMBER};
}

AboutWindow::AboutWindow(AboutInfo info, SVGFigurerApp::DefaultsStore store, QWidget* parent)
    : QDialog(parent), info_(std::move(info)), store_(std::move(store)) {
  setWindowTitle("About " + info_.name);
  resize(320, 460);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(24, 24, 24, 24);
  column->addStretch(1);
  const QIcon icon = QGuiApplication::windowIcon();
  if (!icon.isNull()) {
    auto* image = addLabel(column, "aboutIcon", {});
    image->setPixmap(icon.pixmap(96, 96));
  }
  auto* title = addLabel(column, "aboutTitle", "About " + info_.name);
  QFont titleFont = title->font();
  titleFont.setBold(true);
  titleFont.setPointSizeF(titleFont.pointSizeF() * 1.4);
  title->setFont(titleFont);
  addLabel(column, "aboutVersion",
           QString("Version: %1 (%2)").arg(info_.shortVersion, info_.buildNumber));
  column->addSpacing(24);
  addLabel(column, "usesTitle", "Uses and embeds:");
  addLink(column, "highlightJSLink", "Highligh.js", "https://highlightjs.org/");
  column->addSpacing(16);
  addLabel(column, "inspiredTitle", "Some code inspired by:");
  addLink(column, "lunasvgLink", "lunasvg", "https://github.com/sammycage/lunasvg");
  addLink(column, "nlohmannJSONLink", "nlohmann/json", "https://github.com/nlohmann/json");
  column->addStretch(2);

  restorePlace();
}

AboutWindow::~AboutWindow() {
  if (isVisible()) savePlace();
}

AboutWindow& AboutWindow::shared() {
  QPointer<AboutWindow>& window = sharedWindow();
  if (!window) {
    window =
        new AboutWindow(AboutInfo::fromApplication(),
                        SVGFigurerApp::DefaultsStore::forSuite(SVGFigurerApp::defaultsSuiteName));
    // A top-level widget must go before the application object does.
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, [] { delete sharedWindow().data(); });
  }
  return *window;
}

void AboutWindow::showAbout() {
  AboutWindow& window = shared();
  window.show();
  window.raise();
  window.activateWindow();
}

void AboutWindow::hideEvent(QHideEvent* event) {
  savePlace();
  QDialog::hideEvent(event);
}

void AboutWindow::restorePlace() {
  if (const auto saved = store_.data(aboutGeometryKey)) {
    const QByteArray bytes(saved->data(), static_cast<qsizetype>(saved->size()));
    if (restoreGeometry(bytes)) return;
  }
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    QRect frame = geometry();
    frame.moveCenter(screen->availableGeometry().center());
    move(frame.topLeft());
  }
}

void AboutWindow::savePlace() {
  const QByteArray bytes = saveGeometry();
  if (const auto failure =
          store_.setData(aboutGeometryKey, std::string(bytes.constData(), bytes.size()))) {
    CoreS::defaultLogger().error("could not save the About window's place:", *failure);
  }
}

}  // namespace SVGFigurerWindow
