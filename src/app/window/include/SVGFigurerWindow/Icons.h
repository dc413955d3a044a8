// Toolbar icons: the desktop theme's icon when there is one, else a bundled drawing, so that
// no button is ever blank.
#pragma once

#include <QIcon>

namespace SVGFigurerWindow {

enum class ToolbarIcon { sidebar, sideBySide, stacked, dropChanges, copy };

QIcon toolbarIcon(ToolbarIcon icon);
// The bundled drawing alone, whatever the theme has.
QIcon bundledIcon(ToolbarIcon icon);

}  // namespace SVGFigurerWindow
