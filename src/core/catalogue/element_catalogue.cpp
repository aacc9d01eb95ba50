#include "catalogue/element_catalogue.h"

#include <algorithm>

namespace linecalc {

namespace {

constexpr int kDegrees = 73;  // global word row of the degree word
constexpr int kWaves = 147;   // global word row of the waves of a bellows

constexpr PanelRow diameter(int labelRow, std::string_view suffix, std::string_view defaultText = {}) {
  return {labelRow, suffix, RowUnit::Durchmesser, 0, {}, defaultText, defaultText.empty()};
}
constexpr PanelRow length(int labelRow, std::string_view suffix, std::string_view defaultText) {
  return {labelRow, suffix, RowUnit::Laenge, 0, {}, defaultText, false};
}
constexpr PanelRow section(int labelRow, std::string_view suffix, std::string_view defaultText) {
  return {labelRow, suffix, RowUnit::Querschnitt, 0, {}, defaultText, false};
}
constexpr PanelRow angle(int labelRow, std::string_view defaultText) {
  return {labelRow, " w:", RowUnit::Fixed, kDegrees, {}, defaultText, false};
}
constexpr PanelRow percent(std::string_view defaultText) {
  return {64, ":", RowUnit::Fixed, 0, "%", defaultText, false};
}
constexpr PanelRow coefficient(std::string_view defaultText) {
  return {164, ":", RowUnit::None, 0, {}, defaultText, false};
}
constexpr PanelRow copyOf(int labelRow, std::string_view suffix, int sourceRow) {
  return {labelRow, suffix, RowUnit::Durchmesser, 0, {}, {}, false, sourceRow};
}

constexpr PanelRow D = diameter(127, " D:");
constexpr PanelRow D1 = diameter(127, " D1:");
constexpr PanelRow B = diameter(126, " B:");
constexpr PanelRow H = diameter(128, " H:");
constexpr PanelRow L = length(129, " L:", "1d0");
constexpr PanelRow throat = diameter(43, " D2:", "50");
constexpr ChoicePair edge{35, {"", 135}, {"", 68}};

using E = ElementDefinition;
using Rows = std::array<PanelRow, kPanelRows>;

constexpr E kElements[] = {
    // 1 straight pipes
    E{1, 1, "kreisförmig", 1601, Rows{D, L}, {}, true},
    E{1, 2, "rechteckig", 1602, Rows{B, H, L}, {}, true},
    E{1, 3, "kreisringförmig", 1603, Rows{D, diameter(80, " Di:", "50"), L}, {}, true},
    E{1,
      4,
      "Kanal",
      1604,
      Rows{diameter(84, " B:", "1000"), diameter(59, " H:", "1000"), length(85, " L:", "1d0")},
      {},
      true},
    E{1, 5, "Wellrohr", 1606, Rows{diameter(80, " D:"), diameter(123, " t:", "5"), diameter(122, " T:", "20"), L}},
    E{1, 6, "Sonstige Form", 1605, Rows{section(115, " A:", "0d01"), length(22, ":", "0d4"), L}, {}, true},
    // 2 pipe inlets
    E{2, 1, "kantiger Einlauf", 1701, Rows{D}, edge},
    E{2, 2, "abgerundeter Einlauf", 1702, Rows{D}},
    E{2, 3, "kantiger Einlauf unter Winkel", 1703, Rows{D, angle(163, "45")}},
    E{2, 4, "weit vorstehender kantiger Einlauf", 1704, Rows{D}, edge},
    // 3 changes of section
    E{3, 1, "sprungartige Rohrerweiterung", 1801, Rows{D1, diameter(127, " D2:", "100")}},
    E{3, 2, "allmähliche Rohrerweiterung", 1802, Rows{D1, diameter(127, " D2:", "100"), angle(163, "45")}, {}, true},
    E{3, 3, "sprungartige Rohrverengung", 1803, Rows{D1, diameter(127, " D2:", "50")}},
    E{3, 4, "allmähliche Rohrverengung", 1804, Rows{D1, diameter(127, " D2:", "50"), angle(163, "10")}, {}, true},
    // 4 bends
    E{4, 1, "Kreiskrümmer", 2101, Rows{D, diameter(116, " R:", "100"), angle(163, "90")}, {}, true},
    E{4, 2, "Segmentkrümmer", 2102, Rows{D, angle(163, "90")}, {}, true},
    E{4, 3, "Graugußkrümmer", 2103, Rows{diameter(105, " DN:")}},
    E{4, 4, "Rechteckkrümmer", 2104, Rows{B, H, diameter(116, " R:", "100"), angle(163, "90")}, {}, true},
    E{4, 5, "Kniestück, kreisförmig", 2105, Rows{D, angle(6, "45")}, {}, true},
    E{4, 6, "Kniestück, rechteckig", 2106, Rows{B, H, angle(6, "45")}, {}, true},
    // 5 branches
    E{5, 1, "T-Stücke, scharfkantig", 2201, Rows{D1, diameter(127, " D2:", "50")}},
    E{5, 2, "T-Stücke, kugelförmig", 2202, Rows{D}},
    E{5, 3, "T-Stücke, abgerundet-Boden gerade", 2203, Rows{D}},
    E{5, 4, "T-Stücke, kugelförmig-Hals abgerundet", 2204, Rows{D}},
    E{5,
      5,
      "Abzweigstücke - Stromtrennung",
      2205,
      Rows{D1, diameter(127, " D2:", "50"), diameter(116, " R:", "0"), angle(163, "45")},
      {},
      false,
      true},
    E{5,
      6,
      "Abzweigstücke - Stromvereinigung",
      2206,
      Rows{D1, diameter(127, " D2:", "50"), diameter(116, " R:", "0"), angle(163, "45")},
      {},
      false,
      true},
    E{5, 7, "Hosenrohr, gerade", 2207, Rows{D, angle(163, "45")}},
    E{5, 8, "Hosenrohr, gekrümmt", 2208, Rows{D, diameter(116, " R:", "100")}},
    // 6 expansion joints
    E{6, 1, "Wellrohrausgleicher", 2301, Rows{D, PanelRow{13, ":", RowUnit::Fixed, kWaves, {}, "3"}}},
    E{6, 2, "Lyrabogen", 2302, Rows{D}, ChoicePair{14, {"", 72}, {"", 54}}},
    E{6, 3, "U-Bogen", 2303, Rows{D, diameter(129, " L:", "200")}},  // the length stays in the diameter family
    // 7 shut-off and control valves
    E{7, 1, "Geradsitzventil", 2401, Rows{D}},
    E{7, 2, "Schrägsitzventil", 2402, Rows{D}},
    E{7, 3, "Eckventil", 2403, Rows{D}},
    E{7, 4, "Schieber", 2404, Rows{D, diameter(75, " H:", "50")}},
    E{7, 5, "Hahn", 2405, Rows{D, angle(163, "30")}},
    E{7, 6, "Klappe", 2406, Rows{D, angle(163, "30")}},
    // 8 check valves
    E{8, 1, "Rückschlagventil, Geradsitz-", 2501, Rows{D}},
    E{8, 2, "Rückschlagventil, Schrägsitz-", 2502, Rows{D}},
    E{8, 3, "Rückschlagklappe", 2503, Rows{D}},
    // 9 restrictions
    E{9, 1, "Normblende ISO 5167", 2601, Rows{D1, throat}},
    E{9, 2, "Blende, scharfkantig", 2602, Rows{D1, throat}},
    E{9, 3, "Blende, rundkantig", 2603, Rows{D1, throat, diameter(116, " R:", "5")}},
    E{9, 4, "Lochscheibe", 2604, Rows{D1, throat, diameter(93, " L:", "10")}},
    E{9, 5, "Normdüse", 2605, Rows{D1, throat}},
    E{9, 6, "Langradiusdüse", 26051, Rows{D1, throat}},
    E{9, 7, "Normventuridüse", 2606, Rows{D1, throat}, ChoicePair{111, {"30 ", kDegrees}, {"15 ", kDegrees}}},
    // 10 perforated plates
    E{10, 1, "Lochplatte dünn Kreisrohr", 3001, Rows{D, percent("40")}},
    E{10, 2, "Lochplatte dünn Rechteckrohr", 3002, Rows{B, H, percent("40")}},
    E{10, 3, "Lochplatte dick Kreisrohr", 3003,
      Rows{D, diameter(95, " d:", "5"), diameter(37, " a:", "5"), percent("40")}},
    E{10, 4, "Lochplatte dick Rechteckrohr", 3004,
      Rows{B, H, diameter(95, " d:", "5"), diameter(37, " a:", "5"), percent("40")}},
    // 11 screens and grids
    E{11, 1, "Metallgitter Kreisrohr", 3010, Rows{D, percent("40")}},
    E{11, 2, "Metallgitter Rechteckrohr", 3011, Rows{B, H, percent("40")}},
    E{11, 3, "Drahtsieb Kreisrohr", 3012, Rows{D, percent("40")}},
    E{11, 4, "Drahtsieb Rechteckrohr", 3013, Rows{B, H, percent("40")}},
    E{11, 5, "Doppelgitter Rundrohr", 3014, Rows{D, percent("40")}},
    E{11, 6, "Doppelgitter Rechteckrohr", 3015, Rows{B, H, percent("40")}},
    E{11, 7, "Schmutzfänger Y-Form", 3016, Rows{D}},
    E{11, 8, "Siebkorbfilter", 3017, Rows{D}},
    E{11, 9, "Hutsieb", 3018, Rows{D}},
    // 12 known resistance coefficients; both share one picture
    E{12, 1, "Berechnen mit bekanntem Zeta-Wert Kreisrohr", 2802, Rows{diameter(51, " D:"), coefficient("2")}},
    E{12, 2, "Berechnen mit bekanntem Zeta-Wert Rechteckrohr", 2802,
      Rows{diameter(52, " B:"), diameter(53, " H:"), coefficient("2")}},
    // 13 reversible pressure changes
    E{13, 1, "Höhenunterschiede", 2801, Rows{length(76, " H:", "10")}},
    E{13, 2, "Dyn. Druckänderung Kreisrohr", 3202, Rows{D1, diameter(127, " D2:")}},
    E{13, 3, "Dyn. Druckänderung Rechteckrohr", 3203,
      Rows{diameter(126, " B1:"), diameter(128, " H1:"), copyOf(126, " B2:", 1), copyOf(128, " H2:", 2)}},
};

}  // namespace

int ElementDefinition::rowCount() const {
  return static_cast<int>(std::count_if(rows.begin(), rows.end(), [](const PanelRow& row) { return row.used(); }));
}

std::span<const ElementDefinition> allElements() {
  return kElements;
}

const ElementDefinition* findElement(int group, int nr) {
  for (const auto& element : kElements) {
    if (element.group == group && element.nr == nr) return &element;
  }
  return nullptr;
}

int pictureNumber(int group, int nr) {
  const ElementDefinition* element = findElement(group, nr);
  return element ? element->picture : 0;
}

int chooserTab(int group) {
  return group == kGroupCount ? 1 : 0;
}

std::string buildDefault(std::string_view defaultText, char separator) {
  std::string text(defaultText);
  std::replace(text.begin(), text.end(), 'd', separator);
  return text;
}

}  // namespace linecalc
