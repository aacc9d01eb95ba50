#pragma once

#include <filesystem>

namespace linecalc {

// The folder of the program's data files: $LINECALC_DATA_DIR if set, else <exe>/../share/linecalc
// when it exists (an installation), else <exe>/data (the build tree).
std::filesystem::path dataDirectory();

// The folder of the user's own data files: $XDG_DATA_HOME/linecalc, else ~/.local/share/linecalc.
std::filesystem::path userDataDirectory();

}  // namespace linecalc
