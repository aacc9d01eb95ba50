#include "base/fields.h"

#include <gtest/gtest.h>

namespace linecalc {
namespace {

struct FieldCase {
  const char* line;
  int n;
  const char* expected;
};

TEST(FeldHolen, CountsFieldsFromOneAndNeedsNoTrailingTab) {
  const FieldCase cases[] = {
      {"a\tb\tc", 1, "a"},   {"a\tb\tc", 2, "b"},
      {"a\tb\tc", 3, "c"},   // the last field has no tab after it
      {"a\tb\tc", 4, ""},    // beyond the fields
      {"a\tb\tc\t", 4, ""},  // a trailing tab opens an empty field
      {"a\t\tc", 2, ""},     // empty field in the middle
      {"a\t\tc", 3, "c"},    {"", 1, ""},
      {"", 2, ""},           {"only", 1, "only"},
      {"only", 2, ""},       {"\tlead", 1, ""},
      {"\tlead", 2, "lead"}, {"Rohr\tTube\tTuyau", 0, ""},  // there is no field 0
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Feld_holen(c.line, '\t', c.n), c.expected) << "line \"" << c.line << "\" field " << c.n;
  }
}

TEST(FeldHolen, WorksWithOtherDelimitersAndMultibyteText) {
  EXPECT_EQ(Feld_holen("x;Rohrdurchmesser;Ø", ';', 3), "Ø");
  EXPECT_EQ(Feld_holen("Krümmer\tbend", '\t', 1), "Krümmer");
}

}  // namespace
}  // namespace linecalc
