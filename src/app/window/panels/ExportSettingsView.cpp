#include "SVGFigurerWindow/ExportSettingsView.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <initializer_list>
#include <utility>

#include "Stepper.h"

namespace SVGFigurerWindow {

using SVGFigurerApp::SVGFigurerConfiguration;

std::optional<int> steppedValue(int value, int delta, int upperBound) {
  if (delta > 0) return value < upperBound ? std::optional(value + 1) : std::nullopt;
  if (delta < 0) return value >= 1 ? std::optional(value - 1) : std::nullopt;
  return value;
}

// Lays out the sections and ties every control to its setting, both ways.
class ExportSettingsView::Builder {
 public:
  explicit Builder(ExportSettingsView& view) : view_(view), column_(new QVBoxLayout(&view)) {}

  void section(const QString& title, const char* objectName) {
    auto* box = new QGroupBox(title, &view_);
    box->setObjectName(objectName);
    form_ = new QFormLayout(box);
    column_->addWidget(box);
  }

  void rootViewNameField() {
    auto* field = new QLineEdit(&view_);
    field->setObjectName("rootViewName");
    field->setPlaceholderText("ContentView");
    row("Generated Type of Root View", field, field);
    auto* view = &view_;
    QObject::connect(field, &QLineEdit::textChanged, view, [view](const QString& text) {
      view->edit([&](SVGFigurerConfiguration& c) { c.rootViewName = text.toStdString(); });
    });
    view->showControls_.push_back([view, field] {
      const QString name = QString::fromStdString(view->config_.rootViewName);
      if (field->text() != name) field->setText(name);
    });
  }

  void checkBox(const QString& label, bool SVGFigurerConfiguration::*setting,
                const char* objectName, const QString& text = {}) {
    auto* box = new QCheckBox(text, &view_);
    box->setObjectName(objectName);
    if (text.isEmpty()) box->setAccessibleName(label);
    row(label, box, box);
    auto* view = &view_;
    QObject::connect(box, &QCheckBox::toggled, view, [view, setting](bool on) {
      view->edit([&](SVGFigurerConfiguration& c) { c.*setting = on; });
    });
    view->showControls_.push_back(
        [view, box, setting] { box->setChecked(view->config_.*setting); });
  }

  template <class Choice>
  void picker(const QString& label, Choice SVGFigurerConfiguration::*setting,
              const char* objectName, std::initializer_list<std::pair<QString, Choice>> choices) {
    auto* box = new QComboBox(&view_);
    box->setObjectName(objectName);
    for (const auto& [title, choice] : choices) box->addItem(title, static_cast<int>(choice));
    row(label, box, box);
    auto* view = &view_;
    QObject::connect(box, &QComboBox::currentIndexChanged, view, [view, box, setting](int index) {
      if (index < 0) return;
      const auto choice = static_cast<Choice>(box->itemData(index).toInt());
      view->edit([&](SVGFigurerConfiguration& c) { c.*setting = choice; });
    });
    view->showControls_.push_back([view, box, setting] {
      box->setCurrentIndex(box->findData(static_cast<int>(view->config_.*setting)));
    });
  }

  // A field that takes any integer, and a stepper that stops at 0 and at `upperBound`.
  void numberField(const QString& label, int SVGFigurerConfiguration::*setting,
                   const char* objectName, const QString& stepperName, int upperBound) {
    auto* line = new QWidget(&view_);
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* field = new QLineEdit(line);
    field->setObjectName(objectName);
    field->setValidator(new QIntValidator(field));
    auto* stepper = new Stepper(objectName, stepperName, line);
    layout->addWidget(field, 1);
    layout->addWidget(stepper);
    row(label, line, field);

    auto* view = &view_;
    QObject::connect(field, &QLineEdit::textChanged, view, [view, setting](const QString& text) {
      bool ok = false;
      const int value = text.toInt(&ok);
      if (ok) view->edit([&](SVGFigurerConfiguration& c) { c.*setting = value; });
    });
    // Text that is not a number yet ("", "-") gives way to the value when the user leaves.
    QObject::connect(field, &QLineEdit::editingFinished, view, [view, field, setting] {
      field->setText(QString::number(view->config_.*setting));
    });
    QObject::connect(stepper, &Stepper::stepped, view, [view, setting, upperBound](int delta) {
      view->step(setting, delta, upperBound);
    });
    // A field the user is typing in keeps its text while it reads as the same number.
    view->showControls_.push_back([view, field, setting] {
      bool ok = false;
      const int shown = field->text().toInt(&ok);
      if (!ok || shown != view->config_.*setting)
        field->setText(QString::number(view->config_.*setting));
    });
  }

  void finish() { column_->addStretch(1); }

 private:
  void row(const QString& label, QWidget* control, QWidget* buddy) {
    auto* title = new QLabel(label + ":", &view_);
    title->setObjectName(buddy->objectName() + "Label");
    title->setBuddy(buddy);
    form_->addRow(title, control);
  }

  ExportSettingsView& view_;
  QVBoxLayout* column_;
  QFormLayout* form_ = nullptr;
};

ExportSettingsView::ExportSettingsView(QWidget* parent)
    : QWidget(parent), beep_([] { QApplication::beep(); }) {
  using SVGFigurerApp::IndentType;
  using SVGFigurerApp::InitType;
  using SVGFigurerApp::PositioningStyle;
  using C = SVGFigurerConfiguration;

  Builder build(*this);
  build.section("Top Level View", "topLevelViewSection");
  build.rootViewNameField();
  build.checkBox("Preview Provider", &C::previewProvider, "previewProvider",
                 "Generate Preview Provider");
  build.checkBox("SwiftUI Import", &C::imports, "imports", "Generate SwiftUI Import");

  build.section("Code Generation", "codeGenerationSection");
  build.checkBox("SVG in Comment", &C::prefixSVG, "prefixSVG");
  build.checkBox("Info Comments", &C::infoComments, "infoComments");
  build.picker<InitType>("Initialization Style", &C::initType, "initType",
                         {{".init()", InitType::autoInit}, {"Color()", InitType::type}});
  build.picker<PositioningStyle>(
      "Positioning Style", &C::positioningType, "positioningType",
      {{".padding()", PositioningStyle::padding}, {".offset()", PositioningStyle::offset}});
  build.checkBox("Newline after Path.close()", &C::newlineAfterClosePath, "newlineAfterClosePath");
  build.checkBox("Use Hex Colors", &C::useHexColor, "useHexColor");
  build.checkBox("Compilable Swift", &C::compilableSwift, "compilableSwift");
  build.numberField("Max Fraction Digits", &C::maximumFractionDigits, "maximumFractionDigits",
                    "Fraction Digits Step", maximumFractionDigitsStepBound);

  build.section("Indent", "indentSection");
  build.picker<IndentType>("Indent Using", &C::indentUsing, "indentUsing",
                           {{"Spaces", IndentType::spaces}, {"Tabs", IndentType::tabs}});
  build.numberField("Indent", &C::indent, "indent", "Indent Step", indentStepBound);
  build.checkBox("Indent Empty Lines", &C::indentEmptyLines, "indentEmptyLines");
  build.finish();

  showConfig();
}

void ExportSettingsView::setConfig(const SVGFigurerConfiguration& config) {
  config_ = config;
  showConfig();
}

void ExportSettingsView::setBeep(std::function<void()> beep) {
  beep_ = std::move(beep);
}

void ExportSettingsView::edit(const std::function<void(SVGFigurerConfiguration&)>& change) {
  if (showing_) return;
  SVGFigurerConfiguration next = config_;
  change(next);
  if (next == config_) return;
  config_ = std::move(next);
  showConfig();
  Q_EMIT configEdited(config_);
}

void ExportSettingsView::step(int SVGFigurerConfiguration::*field, int delta, int upperBound) {
  if (const auto next = steppedValue(config_.*field, delta, upperBound)) {
    edit([&](SVGFigurerConfiguration& c) { c.*field = *next; });
  } else if (beep_) {
    beep_();
  }
}

void ExportSettingsView::showConfig() {
  showing_ = true;
  for (const auto& show : showControls_) show();
  showing_ = false;
}

}  // namespace SVGFigurerWindow
