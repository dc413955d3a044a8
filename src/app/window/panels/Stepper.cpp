#include "Stepper.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace SVGFigurerWindow {

namespace {

QToolButton* stepButton(QWidget* parent, const QString& objectName, Qt::ArrowType arrow,
                        const QString& accessibleName) {
  auto* button = new QToolButton(parent);
  button->setObjectName(objectName);
  button->setArrowType(arrow);
  button->setAccessibleName(accessibleName);
  button->setAutoRepeat(true);
  button->setFixedSize(18, 12);
  return button;
}

}  // namespace

Stepper::Stepper(const QString& setting, const QString& accessibleName, QWidget* parent)
    : QWidget(parent) {
  setObjectName(setting + "Stepper");
  setAccessibleName(accessibleName);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* up = stepButton(this, setting + "StepUp", Qt::UpArrow, "Increment");
  auto* down = stepButton(this, setting + "StepDown", Qt::DownArrow, "Decrement");
  column->addWidget(up);
  column->addWidget(down);
  connect(up, &QToolButton::clicked, this, [this] { Q_EMIT stepped(1); });
  connect(down, &QToolButton::clicked, this, [this] { Q_EMIT stepped(-1); });
}

}  // namespace SVGFigurerWindow
