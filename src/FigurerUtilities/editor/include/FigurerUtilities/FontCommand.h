// The font commands of an editor (the font panel, the size steps, the trait buttons) as a pure
// decision, apart from any widget.
#pragma once

#include <cstdint>

namespace FigurerUtilities {

// The font manager's action numbers.
enum class FontAction : int {
  viaPanel = 1,
  addTrait = 2,
  sizeUp = 3,
  sizeDown = 4,
  removeTrait = 7
};

struct FontCommand {
  enum class Kind : std::uint8_t {
    notHandled,   // the caller's own behaviour applies
    useSelected,  // take the font chosen in the panel
    setSize,      // the current font at `pointSize`
    beep,
  };
  Kind kind = Kind::notHandled;
  double pointSize = 0;
  bool operator==(const FontCommand&) const = default;
};

// The smallest size a step down reaches; a step below it beeps.
inline constexpr double kSmallestFontSize = 1;

// `action` may be any number: unknown ones are not handled.
FontCommand fontCommand(int action, double currentPointSize, bool panelHasSelection);

}  // namespace FigurerUtilities
