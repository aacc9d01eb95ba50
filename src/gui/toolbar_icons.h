#pragma once

#include <QIcon>
#include <string_view>

namespace linecalc::gui {

// The picture of a tool button of the main window by its control name ("ToolButton5"), drawn at
// 16, 24, 32 and 48 pixels; a null icon for a name that is no tool button.
QIcon toolbarIcon(std::string_view toolName);

}  // namespace linecalc::gui
