// The settings panel of the window's sidebar: every export setting of one document, in the
// sections "Top Level View", "Code Generation" and "Indent".
//
// Each control carries the object name of the setting it edits ("rootViewName", "indent",
// ...); the two steppers are "maximumFractionDigitsStepper" and "indentStepper", with the
// buttons "<setting>StepUp" and "<setting>StepDown".
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "SVGFigurerApp/SVGFigurerConfiguration.h"

namespace SVGFigurerWindow {

// The steppers stop at these bounds; the number fields beside them take any integer, as a
// document file may.
inline constexpr int maximumFractionDigitsStepBound = 13;
inline constexpr int indentStepBound = 9;

// One step of `delta` (+1 or -1) from `value`: up while below `upperBound`, down while at least
// 1. Nothing when the step would pass a limit.
std::optional<int> steppedValue(int value, int delta, int upperBound);

class ExportSettingsView : public QWidget {
  Q_OBJECT

 public:
  explicit ExportSettingsView(QWidget* parent = nullptr);

  // Shows `config` without emitting configEdited.
  void setConfig(const SVGFigurerApp::SVGFigurerConfiguration& config);
  const SVGFigurerApp::SVGFigurerConfiguration& config() const { return config_; }

  // What a step past a stepper's limit sounds; QApplication::beep unless replaced.
  void setBeep(std::function<void()> beep);

 Q_SIGNALS:
  // The whole record after any change the user made; the root view name is sent on each edit
  // of its text.
  void configEdited(SVGFigurerApp::SVGFigurerConfiguration config);

 private:
  class Builder;

  // Applies a change the user made and emits the record when it differs.
  void edit(const std::function<void(SVGFigurerApp::SVGFigurerConfiguration&)>& change);
  void step(int SVGFigurerApp::SVGFigurerConfiguration::*field, int delta, int upperBound);
  void showConfig();

  SVGFigurerApp::SVGFigurerConfiguration config_;
  std::function<void()> beep_;
  // Set while the controls are filled from config_, so that they do not echo it back.
  bool showing_ = false;
  // Each fills one control from config_.
  std::vector<std::function<void()>> showControls_;
};

}  // namespace SVGFigurerWindow

Q_DECLARE_METATYPE(SVGFigurerApp::SVGFigurerConfiguration)
