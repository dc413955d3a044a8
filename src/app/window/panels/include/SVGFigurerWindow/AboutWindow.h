// The About window: one per process, hidden rather than destroyed when closed, its place kept
// in the defaults store under "About Panel".
#pragma once

#include <QDialog>
#include <QString>

#include "SVGFigurerApp/DefaultsStore.h"

namespace SVGFigurerWindow {

// The application's name and version data as the About window shows them.
struct AboutInfo {
  QString name;
  QString shortVersion;
  QString buildNumber;

  // The application's display name and version, and the build number the program was built
  // with (the CMake cache variable SVGFIGURER_BUILD_NUMBER).
  static AboutInfo fromApplication();
  bool operator==(const AboutInfo&) const = default;
};

inline constexpr const char* aboutGeometryKey = "About Panel";

class AboutWindow : public QDialog {
  Q_OBJECT

 public:
  // Labels: "aboutTitle", "aboutVersion", "usesTitle", "highlightJSLink", "inspiredTitle",
  // "lunasvgLink", "nlohmannJSONLink".
  AboutWindow(AboutInfo info, SVGFigurerApp::DefaultsStore store, QWidget* parent = nullptr);
  ~AboutWindow() override;

  // The process's window over the application's defaults suite, made on first call; the
  // desktop program calls this at start. It is destroyed when the application quits.
  static AboutWindow& shared();
  // Brings the shared window to the front.
  static void showAbout();

  const AboutInfo& info() const { return info_; }

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void restorePlace();
  void savePlace();

  AboutInfo info_;
  SVGFigurerApp::DefaultsStore store_;
};

}  // namespace SVGFigurerWindow
