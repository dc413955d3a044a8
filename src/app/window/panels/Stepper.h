// A pair of arrow buttons beside a number field. It holds no value: whoever owns the field
// decides whether a step is allowed.
#pragma once

#include <QWidget>

namespace SVGFigurerWindow {

class Stepper : public QWidget {
  Q_OBJECT

 public:
  // `setting` names the edited setting: the stepper is "<setting>Stepper", its buttons
  // "<setting>StepUp" and "<setting>StepDown".
  Stepper(const QString& setting, const QString& accessibleName, QWidget* parent = nullptr);

 Q_SIGNALS:
  void stepped(int delta);
};

}  // namespace SVGFigurerWindow
