// The preview page: the SVG text in a fixed HTML page, its root tag rewritten so that the image
// scales to the pane. Pure text work; the web view that shows it lives in the preview target.
#pragma once

#include <string>
#include <string_view>

#include "CoreS/Logger.h"

namespace FigurerUtilities {

// The whole HTML page for the SVG text.
std::string previewPage(std::string_view svg, CoreS::Logger& logger = CoreS::defaultLogger());

// Rewrites the attributes of the first "<svg" tag: a width or height without a viewBox becomes
// the viewBox, x and y go, width and height become "100%". Text that cannot be rewritten comes
// back unchanged.
std::string rewriteSVGSize(std::string_view svg, CoreS::Logger& logger = CoreS::defaultLogger());

// Escapes &, <, >, ' and " for a double-quoted attribute value.
std::string escapeForAttribute(std::string_view text);

}  // namespace FigurerUtilities
