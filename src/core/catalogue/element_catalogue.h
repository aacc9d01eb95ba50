#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace linecalc {

inline constexpr int kGroupCount = 13;
inline constexpr int kElementsPerGroup = 9;
inline constexpr int kPanelRows = 5;

// Which unit list a panel row's combo box shows; fixed rows show a unit word, free rows none.
enum class RowUnit { None, Durchmesser, Laenge, Querschnitt, Fixed };

// One input row of the element panel (row n is the variable Van).
struct PanelRow {
  int labelRow = 0;         // global word row that opens the label; 0: the element has no such row
  std::string_view suffix;  // follows the label word directly: " D:", " L:", ":"
  RowUnit unit = RowUnit::None;
  int fixedUnitRow = 0;          // global word row of a fixed unit (73 degrees, 147 waves)
  std::string_view fixedUnit;    // a fixed unit text ("%") where no word row gives it
  std::string_view defaultText;  // "d" stands for the current decimal separator: "1d0"
  bool keep = false;             // keeps what the user typed; an empty field becomes "100"
  int copyFrom = 0;              // takes the text of row Va<copyFrom> ((13,3))

  bool used() const { return labelRow != 0; }
};

// One entry of a choice pair: an optional number before a global word ("30 " + degrees).
struct ChoiceText {
  std::string_view prefix;
  int wordRow = 0;
};

struct ChoicePair {
  int labelRow = 0;  // 0: the element has no choice
  ChoiceText first;
  ChoiceText second;
};

struct ElementDefinition {
  int group = 0;
  int nr = 0;
  std::string_view germanName;
  int picture = 0;  // the element's picture number
  std::array<PanelRow, kPanelRows> rows{};
  ChoicePair choice{};
  bool roughness = false;   // pipe roughness input enabled
  bool branchFlow = false;  // branch flow input enabled

  int rowCount() const;
};

std::span<const ElementDefinition> allElements();

// The element (group, nr), or nullptr where the catalogue has none.
const ElementDefinition* findElement(int group, int nr);

// The picture number of (group, nr), 0 where the element does not exist.
int pictureNumber(int group, int nr);

// Tab of the element chooser: groups 1 to 12 on the first (0), group 13 on the second (1).
int chooserTab(int group);

// A catalogue default with "d" replaced by the decimal separator: "1d0" -> "1,0".
std::string buildDefault(std::string_view defaultText, char separator);

}  // namespace linecalc
