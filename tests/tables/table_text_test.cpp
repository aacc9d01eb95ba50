// The tab-separated text of table cells, as the clipboard receives it.
#include <gtest/gtest.h>

#include "tables/table_text.h"

namespace linecalc {
namespace {

TEST(TableText, CellsBecomeTabSeparatedLines) {
  struct Case {
    const char* what;
    std::vector<std::vector<std::string>> rows;
    std::string text;
  };
  const Case cases[] = {
      {"nothing", {}, ""},
      {"one cell", {{"1,250"}}, "1,250\n"},
      {"a row", {{"Dichte", "kg/m3", "998,2"}}, "Dichte\tkg/m3\t998,2\n"},
      {"empty cells keep their place", {{"a", "", "c"}, {"", "", ""}}, "a\t\tc\n\t\t\n"},
      {"rows of different length",
       {{"Größe", "Einheit", "1", "2"}, {"1. Fördermedium"}},
       "Größe\tEinheit\t1\t2\n1. Fördermedium\n"},
      {"separators inside a cell become blanks",
       {{"Rohr\tA", "Zeile 1\nZeile 2", "x\r\ny"}},
       "Rohr A\tZeile 1 Zeile 2\tx  y\n"},
  };
  for (const auto& c : cases) EXPECT_EQ(tabSeparatedText(c.rows), c.text) << c.what;
}

}  // namespace
}  // namespace linecalc
