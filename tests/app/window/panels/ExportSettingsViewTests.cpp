#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <functional>
#include <string>
#include <vector>

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

TEST(ExportSettingsView, Texts) {
  Panel panel;
  const std::vector<std::pair<QString, QStringList>> sections = {
      {"Top Level View", {"Generated Type of Root View:", "Preview Provider:", "SwiftUI Import:"}},
      {"Code Generation",
       {"SVG in Comment:", "Info Comments:", "Initialization Style:", "Positioning Style:",
        "Newline after Path.close():", "Use Hex Colors:", "Compilable Swift:",
        "Max Fraction Digits:"}},
      {"Indent", {"Indent Using:", "Indent:", "Indent Empty Lines:"}},
  };
  const auto boxes = panel.view.findChildren<QGroupBox*>();
  ASSERT_EQ(boxes.size(), qsizetype(sections.size()));
  for (size_t i = 0; i < sections.size(); ++i) {
    EXPECT_EQ(boxes[i]->title(), sections[i].first);
    QStringList labels;
    for (const QLabel* label : boxes[i]->findChildren<QLabel*>()) labels << label->text();
    EXPECT_EQ(labels, sections[i].second);
  }

  for (const auto& [name, setting] : checkBoxes) {
    const QString text = setting == &C::previewProvider ? "Generate Preview Provider"
                         : setting == &C::imports       ? "Generate SwiftUI Import"
                                                        : "";
    EXPECT_EQ(panel.find<QCheckBox>(name)->text(), text) << name;
  }
  const std::vector<std::pair<const char*, QStringList>> pickers = {
      {"initType", {".init()", "Color()"}},
      {"positioningType", {".padding()", ".offset()"}},
      {"indentUsing", {"Spaces", "Tabs"}},
  };
  for (const auto& [name, items] : pickers) {
    QComboBox* box = panel.find<QComboBox>(name);
    QStringList texts;
    for (int i = 0; i < box->count(); ++i) texts << box->itemText(i);
    EXPECT_EQ(texts, items) << name;
  }
  EXPECT_EQ(panel.find<QLineEdit>("rootViewName")->placeholderText(), "ContentView");
  EXPECT_EQ(panel.find<QWidget>("maximumFractionDigitsStepper")->accessibleName(),
            "Fraction Digits Step");
  EXPECT_EQ(panel.find<QWidget>("indentStepper")->accessibleName(), "Indent Step");
}

TEST(ExportSettingsView, EachControlEditsItsOwnKeyInTheWholeRecord) {
  struct Case {
    const char* name;
    std::function<void(Panel&)> act;
    std::function<void(C&)> expect;
  };
  std::vector<Case> cases = {
      {"rootViewName", [](Panel& p) { p.type("rootViewName", "Art"); },
       [](C& c) { c.rootViewName = "Art"; }},
      {"initType", [](Panel& p) { p.find<QComboBox>("initType")->setCurrentIndex(0); },
       [](C& c) { c.initType = InitType::autoInit; }},
      {"positioningType",
       [](Panel& p) { p.find<QComboBox>("positioningType")->setCurrentIndex(1); },
       [](C& c) { c.positioningType = PositioningStyle::offset; }},
      {"indentUsing", [](Panel& p) { p.find<QComboBox>("indentUsing")->setCurrentIndex(1); },
       [](C& c) { c.indentUsing = IndentType::tabs; }},
      // The fields take values the steppers would refuse.
      {"fraction field", [](Panel& p) { p.type("maximumFractionDigits", "25"); },
       [](C& c) { c.maximumFractionDigits = 25; }},
      {"indent field", [](Panel& p) { p.type("indent", "-3"); }, [](C& c) { c.indent = -3; }},
      {"fraction stepper",
       [](Panel& p) { p.find<QToolButton>("maximumFractionDigitsStepUp")->click(); },
       [](C& c) { c.maximumFractionDigits = 5; }},
      {"indent stepper", [](Panel& p) { p.find<QToolButton>("indentStepDown")->click(); },
       [](C& c) { c.indent = 1; }},
  };
  for (const auto& [name, setting] : checkBoxes) {
    cases.push_back({name, [name](Panel& p) { p.find<QCheckBox>(name)->click(); },
                     [setting](C& c) { c.*setting = !(c.*setting); }});
  }
  for (const auto& row : cases) {
    Panel panel;
    row.act(panel);
    C expected = C::fresh();
    row.expect(expected);
    ASSERT_FALSE(panel.edits.empty()) << row.name;
    EXPECT_EQ(panel.edits.back(), expected) << row.name;
    EXPECT_EQ(panel.view.config(), expected) << row.name;
  }
}

TEST(ExportSettingsView, SteppersStopAtTheirLimitsWithABeep) {
  struct Case {
    const char* button;
    int start;
    int expected;
  };
  const std::vector<Case> cases = {
      {"maximumFractionDigitsStepUp", 12, 13},
      {"maximumFractionDigitsStepUp", 13, 13},
      {"maximumFractionDigitsStepDown", 1, 0},
      {"maximumFractionDigitsStepDown", 0, 0},
      {"maximumFractionDigitsStepDown", 20, 19},
      {"maximumFractionDigitsStepUp", -4, -3},
      {"indentStepUp", 8, 9},
      {"indentStepUp", 9, 9},
      {"indentStepDown", 1, 0},
      {"indentStepDown", 0, 0},
  };
  for (const auto& row : cases) {
    const bool fraction = std::string(row.button).starts_with("maximumFractionDigits");
    int C::*setting = fraction ? &C::maximumFractionDigits : &C::indent;
    C config;
    config.*setting = row.start;
    Panel panel(config);
    panel.find<QToolButton>(row.button)->click();

    const std::string where = std::string(row.button) + " from " + std::to_string(row.start);
    const bool refused = row.start == row.expected;
    EXPECT_EQ(panel.beeps, refused ? 1 : 0) << where;
    EXPECT_EQ(panel.edits.size(), refused ? 0u : 1u) << where;
    EXPECT_EQ(panel.view.config().*setting, row.expected) << where;
    EXPECT_EQ(panel.find<QLineEdit>(fraction ? "maximumFractionDigits" : "indent")->text(),
              QString::number(row.expected))
        << where;
  }
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
