#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "FigurerUtilities/Transcript.h"
#include "SVGFigurerWindow/ExportSettingsView.h"

namespace {

using SVGFigurerApp::IndentType;
using SVGFigurerApp::InitType;
using SVGFigurerApp::PositioningStyle;
using C = SVGFigurerApp::SVGFigurerConfiguration;
using SVGFigurerWindow::ExportSettingsView;

// A shown view with a recorded signal and a counted beep.
struct Panel {
  ExportSettingsView view;
  std::vector<C> edits;
  int beeps = 0;

  explicit Panel(const C& config = C::fresh()) {
    view.setConfig(config);
    view.setBeep([this] { ++beeps; });
    QObject::connect(&view, &ExportSettingsView::configEdited,
                     [this](const C& c) { edits.push_back(c); });
    view.show();
  }
  template <class W>
  W* find(const char* name) {
    W* widget = view.findChild<W*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  void type(const char* field, const QString& text) {
    find<QLineEdit>(field)->selectAll();
    QTest::keyClicks(find<QLineEdit>(field), text);
  }
};

const std::vector<std::pair<const char*, bool C::*>> checkBoxes = {
    {"previewProvider", &C::previewProvider},
    {"imports", &C::imports},
    {"prefixSVG", &C::prefixSVG},
    {"infoComments", &C::infoComments},
    {"newlineAfterClosePath", &C::newlineAfterClosePath},
    {"useHexColor", &C::useHexColor},
    {"compilableSwift", &C::compilableSwift},
    {"indentEmptyLines", &C::indentEmptyLines},
};

// What the panel says: each section with its labels, each check box, picker, placeholder and
// stepper name.
TEST(ExportSettingsView, Texts) {
  Panel panel;
  Transcript::expect("app/window/panels/data/export-settings-texts.txt", [&](const std::string&) {
    QStringList lines;
    for (const QGroupBox* box : panel.view.findChildren<QGroupBox*>()) {
      QStringList labels;
      for (const QLabel* label : box->findChildren<QLabel*>()) labels << label->text();
      lines << box->title() + ": " + labels.join(" | ");
    }
    for (const auto& [name, setting] : checkBoxes) {
      lines << QString(name) + " check box: " + panel.find<QCheckBox>(name)->text();
    }
    for (const char* name : {"initType", "positioningType", "indentUsing"}) {
      QStringList items;
      for (int i = 0; i < panel.find<QComboBox>(name)->count(); ++i)
        items << panel.find<QComboBox>(name)->itemText(i);
      lines << QString(name) + " picker: " + items.join(" | ");
    }
    lines << "rootViewName placeholder: " +
                 panel.find<QLineEdit>("rootViewName")->placeholderText();
    for (const char* name : {"maximumFractionDigitsStepper", "indentStepper"}) {
      lines << QString(name) + ": " + panel.find<QWidget>(name)->accessibleName();
    }
    return ("> " + lines.join("\n> ") + "\n").toStdString();
  });
}

TEST(ExportSettingsView, EachControlEditsItsOwnKeyInTheWholeRecord) {
  struct Case {
    std::function<void(Panel&)> act;
    std::string key, value;  // the edit the record must show, as `config set` would make it
  };
  const auto pick = [](const char* name, int index) {
    return [=](Panel& p) { p.find<QComboBox>(name)->setCurrentIndex(index); };
  };
  const auto click = [](const char* name) {
    return [=](Panel& p) { p.find<QAbstractButton>(name)->click(); };
  };
  std::vector<Case> cases = {
      {[](Panel& p) { p.type("rootViewName", "Art"); }, "rootViewName", "Art"},
      {pick("initType", 0), "initType", "init"},
      {pick("positioningType", 1), "positioningType", "offset"},
      {pick("indentUsing", 1), "indentUsing", "tabs"},
      // The fields take values the steppers would refuse.
      {[](Panel& p) { p.type("maximumFractionDigits", "25"); }, "maximumFractionDigits", "25"},
      {[](Panel& p) { p.type("indent", "-3"); }, "indent", "-3"},
      {click("maximumFractionDigitsStepUp"), "maximumFractionDigits", "5"},
      {click("indentStepDown"), "indent", "1"},
  };
  for (const auto& [name, setting] : checkBoxes) {
    cases.push_back({click(name), name, C::fresh().*setting ? "false" : "true"});
  }
  for (const auto& row : cases) {
    Panel panel;
    row.act(panel);
    C expected = C::fresh();
    ASSERT_FALSE(SVGFigurerApp::setConfigurationValue(expected, row.key, row.value));
    ASSERT_FALSE(panel.edits.empty()) << row.key;
    EXPECT_EQ(panel.edits.back(), expected) << row.key;
    EXPECT_EQ(panel.view.config(), expected) << row.key;
  }
}

// Each input is a stepper button and the value it starts from: the value after a click, the text
// its field then shows, and whether the click made an edit or a beep.
TEST(ExportSettingsView, SteppersStopAtTheirLimitsWithABeep) {
  Transcript::expect("app/window/panels/data/steppers.txt", [](const std::string& input) {
    std::istringstream fields(input);
    std::string button;
    int start = 0;
    fields >> button >> start;
    const bool fraction = button.starts_with("maximumFractionDigits");
    int C::*setting = fraction ? &C::maximumFractionDigits : &C::indent;
    C config;
    config.*setting = start;
    Panel panel(config);
    panel.find<QToolButton>(button.c_str())->click();
    return "> " + std::to_string(panel.view.config().*setting) + ", shown " +
           panel.find<QLineEdit>(fraction ? "maximumFractionDigits" : "indent")
               ->text()
               .toStdString() +
           ", " + std::to_string(panel.edits.size()) + " edits, " + std::to_string(panel.beeps) +
           " beeps\n";
  });
}

TEST(ExportSettingsView, SetConfigShowsEveryKeyWithoutEmitting) {
  C config;
  config.rootViewName = "Logo";
  config.indentUsing = IndentType::tabs;
  config.indent = 30;
  config.initType = InitType::autoInit;
  config.positioningType = PositioningStyle::offset;
  config.maximumFractionDigits = 0;
  for (const auto& [name, setting] : checkBoxes) config.*setting = !(config.*setting);
  Panel panel;
  panel.view.setConfig(config);

  EXPECT_TRUE(panel.edits.empty());
  EXPECT_EQ(panel.view.config(), config);
  EXPECT_EQ(panel.find<QLineEdit>("rootViewName")->text(), "Logo");
  EXPECT_EQ(panel.find<QLineEdit>("indent")->text(), "30");
  EXPECT_EQ(panel.find<QLineEdit>("maximumFractionDigits")->text(), "0");
  EXPECT_EQ(panel.find<QComboBox>("indentUsing")->currentText(), "Tabs");
  EXPECT_EQ(panel.find<QComboBox>("initType")->currentText(), ".init()");
  EXPECT_EQ(panel.find<QComboBox>("positioningType")->currentText(), ".offset()");
  for (const auto& [name, setting] : checkBoxes)
    EXPECT_EQ(panel.find<QCheckBox>(name)->isChecked(), config.*setting) << name;
}

TEST(ExportSettingsView, UnfinishedNumberGivesWayToTheValue) {
  Panel panel;
  panel.type("indent", "-");
  Q_EMIT panel.find<QLineEdit>("indent")->editingFinished();
  EXPECT_TRUE(panel.edits.empty());
  EXPECT_EQ(panel.find<QLineEdit>("indent")->text(), "2");
}

}  // namespace
