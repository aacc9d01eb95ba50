#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace linecalc {

class Anwendung;
class Registrierung;

// The product title of each program language, in the order of kSprachversionen (German, English,
// Dutch, French); the French program carries the English title.
inline constexpr std::array<std::string_view, 4> kProductTitles = {"Stromlauf 7.22", "WH Linecalc 7.22",
                                                                   "PW Stromkal 7.22", "WH Linecalc 7.22"};

// The stored places of the main window (HF_) and of the result window (AF_), in screen pixels. The
// desktop program reads them after the settings are read and sets them before they are written; a
// value never stored stays empty and the window manager places the window.
struct WindowPlacement {
  std::optional<int> HF_Left, HF_Top;
  std::optional<int> AF_Left, AF_Top, AF_Width, AF_Height;
  // The height of the screen, set by the desktop program before the settings are read; 0 when unknown.
  int screenHeight = 0;
};

// Reads the program language first of all, before the language files are loaded: Sprachversion 0 to
// 3 selects German, English, Dutch or French and the product title. Without a value, or with any
// other, the language and the title stay as the program starts them (English).
void Registry_Sprachversion_lesen(Anwendung& app, const Registrierung& store);

// Reads every setting and the last state of the panels, section by section (Allgemein, Units,
// Fenster, Medium, Gasdaten, Rohr, RecentFiles). Each value is read on its own: one that is absent or
// unreadable leaves its default (Standardeinstellungen runs first), a unit index beyond its list
// selects the first unit, and a stored element the catalogue lacks becomes (1,1). The element panel
// is rebuilt for the stored element and then takes the stored texts and units, so that it ends as it
// was left.
void Registry_Lesen(Anwendung& app, const Registrierung& store);

// Writes all that Registry_Lesen reads, and the recent files.
void Registry_Schreiben(const Anwendung& app, Registrierung& store);

// The defaults of a first start: column widths, decimals and diagram points, the language boxes,
// gas update off, and the medium panel with water at 20 °C as liquid.
void Standardeinstellungen(Anwendung& app);

}  // namespace linecalc
