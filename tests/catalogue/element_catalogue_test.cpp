#include "catalogue/element_catalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace linecalc {
namespace {

TEST(ElementCatalogue, HoldsSixtyFiveElementsInThirteenGroups) {
  std::map<int, int> perGroup;
  for (const auto& element : allElements()) ++perGroup[element.group];
  const std::map<int, int> expected = {{1, 6}, {2, 4}, {3, 4},  {4, 6},  {5, 8},  {6, 3}, {7, 6},
                                       {8, 3}, {9, 7}, {10, 4}, {11, 9}, {12, 2}, {13, 3}};
  EXPECT_EQ(perGroup, expected);
  EXPECT_EQ(findElement(8, 4), nullptr);
  EXPECT_EQ(findElement(0, 1), nullptr);
  EXPECT_EQ(findElement(14, 1), nullptr);
}

TEST(ElementCatalogue, PicturesAreUniqueButForTheTwoKnownCoefficientElements) {
  std::map<int, int> uses;
  for (const auto& element : allElements()) ++uses[element.picture];
  for (const auto& [picture, count] : uses) EXPECT_EQ(count, picture == 2802 ? 2 : 1) << picture;
  EXPECT_EQ(pictureNumber(9, 6), 26051);  // the one five-digit picture
  EXPECT_EQ(pictureNumber(12, 2), 2802);
  EXPECT_EQ(pictureNumber(7, 9), 0);
}

TEST(ElementCatalogue, RowsAreFilledFromTheTopWithoutGaps) {
  for (const auto& element : allElements()) {
    const int count = element.rowCount();
    EXPECT_GE(count, 1) << element.germanName;
    for (int i = 0; i < kPanelRows; ++i)
      EXPECT_EQ(element.rows[i].used(), i < count) << element.germanName << " row " << i;
  }
}

TEST(ElementCatalogue, KeepRowsHaveNoDefaultAndOtherRowsHaveOne) {
  for (const auto& element : allElements()) {
    for (const auto& row : element.rows) {
      if (!row.used() || row.copyFrom != 0) continue;
      EXPECT_NE(row.keep, !row.defaultText.empty()) << element.germanName << row.suffix;
    }
  }
  // The first row of every element keeps what the user typed, except the few whose first row is not
  // the pipe's size: the channel, the free section and the height difference.
  const std::set<std::pair<int, int>> firstRowWithDefault = {{1, 4}, {1, 6}, {13, 1}};
  for (const auto& element : allElements()) {
    EXPECT_EQ(!element.rows[0].keep, firstRowWithDefault.contains({element.group, element.nr})) << element.germanName;
  }
}

TEST(ElementCatalogue, InputsThatOnlySomeElementsHave) {
  std::set<std::pair<int, int>> rough, branch, choice;
  for (const auto& element : allElements()) {
    if (element.roughness) rough.insert({element.group, element.nr});
    if (element.branchFlow) branch.insert({element.group, element.nr});
    if (element.choice.labelRow != 0) choice.insert({element.group, element.nr});
  }
  const std::set<std::pair<int, int>> expectedRough = {{1, 1}, {1, 2}, {1, 3}, {1, 4}, {1, 6}, {3, 2},
                                                       {3, 4}, {4, 1}, {4, 2}, {4, 4}, {4, 5}, {4, 6}};
  EXPECT_EQ(rough, expectedRough);
  EXPECT_EQ(branch, (std::set<std::pair<int, int>>{{5, 5}, {5, 6}}));
  EXPECT_EQ(choice, (std::set<std::pair<int, int>>{{2, 1}, {2, 4}, {6, 2}, {9, 7}}));
  const auto& venturi = findElement(9, 7)->choice;
  EXPECT_EQ(venturi.first.prefix, "30 ");
  EXPECT_EQ(venturi.second.prefix, "15 ");
  EXPECT_EQ(venturi.first.wordRow, 73);
}

TEST(ElementCatalogue, SpecialRows) {
  const auto& rectangularChange = *findElement(13, 3);
  EXPECT_EQ(rectangularChange.rows[2].copyFrom, 1);                  // B2 starts from B1
  EXPECT_EQ(rectangularChange.rows[3].copyFrom, 2);                  // H2 starts from H1
  EXPECT_EQ(findElement(6, 3)->rows[1].unit, RowUnit::Durchmesser);  // U-bend length in the diameter family
  EXPECT_EQ(findElement(6, 1)->rows[1].fixedUnitRow, 147);
  EXPECT_EQ(findElement(10, 4)->rows[4].fixedUnit, "%");
  EXPECT_EQ(findElement(12, 1)->rows[1].unit, RowUnit::None);
  EXPECT_EQ(findElement(4, 5)->rows[1].labelRow, 6);  // the knee pieces' own angle word
  EXPECT_EQ(findElement(1, 6)->rows[0].unit, RowUnit::Querschnitt);
}

TEST(ElementCatalogue, ChooserTabsAndDefaults) {
  for (int group = 1; group <= 12; ++group) EXPECT_EQ(chooserTab(group), 0);
  EXPECT_EQ(chooserTab(13), 1);
  EXPECT_EQ(buildDefault("1d0", ','), "1,0");
  EXPECT_EQ(buildDefault("0d01", '.'), "0.01");
  EXPECT_EQ(buildDefault("1000", ','), "1000");
}

}  // namespace
}  // namespace linecalc
