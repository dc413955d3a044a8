#include "FigurerUtilities/FontCommand.h"

namespace FigurerUtilities {

FontCommand fontCommand(int action, double currentPointSize, bool panelHasSelection) {
  using Kind = FontCommand::Kind;
  switch (static_cast<FontAction>(action)) {
    case FontAction::viaPanel:
      return {panelHasSelection ? Kind::useSelected : Kind::notHandled};
    case FontAction::addTrait:
    case FontAction::removeTrait:
      // Bold and italic belong to the highlighting theme, not to the editor's font.
      return {Kind::beep};
    case FontAction::sizeUp:
      return {Kind::setSize, currentPointSize + 1};
    case FontAction::sizeDown:
      if (currentPointSize - 1 < kSmallestFontSize) return {Kind::beep};
      return {Kind::setSize, currentPointSize - 1};
  }
  return {};
}

}  // namespace FigurerUtilities
