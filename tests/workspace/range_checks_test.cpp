// The range checks of element inputs: bounds, rules by element, the message texts and their heads.
#include <gtest/gtest.h>

#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

class RangeChecks : public AppTest {
 protected:
  // Runs the element (group, nr) with the rows' texts; returns the number of boxes shown.
  std::size_t run(int group, int nr, std::vector<std::string> rows, int spalte = 0) {
    choose(group, nr);
    for (std::size_t i = 0; i < rows.size(); ++i) form.vaEdit(static_cast<int>(i + 1)).Text = rows[i];
    meldungen.clear();
    form.Berechnen(spalte);
    return messages().size();
  }
  bool mentions(std::size_t message, const std::string& part) const {
    return messages().at(message).text.find(part) != std::string::npos;
  }
};

TEST_F(RangeChecks, ABoundMessageNamesElementFieldAndLimit) {
  run(2, 3, {"100", "90"});
  // element name ":", the lead-in, the field label, the too-large words and the limit with one decimal
  const std::string expected = "Rohreinläufe - kantiger Einlauf unter Winkel:\n" + word(190) + " \n>> " +
                               form.Va2_Static.Caption + " << \n" + word(200) + "\n>> 90,0 << ";
  EXPECT_EQ(onlyMessageText(), expected);
  EXPECT_EQ(messages()[0].caption, word(197));
  EXPECT_EQ(form.Fokus, &form.Va2_Edit);
  EXPECT_FALSE(state.Bereich_i_O);
}

struct BoundCase {
  int group, nr;
  std::vector<std::string> rows;
  std::size_t messages;
  const char* limitShown;  // the limit text of the (first) message, "" for none
};

TEST_F(RangeChecks, BoundsAndZeroAreCheckedInOrder) {
  const BoundCase cases[] = {
      {2, 3, {"100", "89,9"}, 0, ""},
      {2, 3, {"100", "90"}, 1, "90,0"},  // the upper bound itself fails
      {2, 3, {"100", "0"}, 1, "0"},      // zero is not allowed
      {2, 3, {"100", "-1"}, 2, "0"},     // negative, and below the lower bound 0 of an angle
      {10, 1, {"100", "1"}, 0, ""},      // the lower bound itself passes
      {10, 1, {"100", "0,5"}, 1, "1,0"},
      {10, 1, {"100", "99"}, 1, "99,0"},
      {5, 5, {"100", "50", "0", "45"}, 0, ""},  // the radius may be zero
      {5, 5, {"100", "50", "-1", "45"}, 1, "0"},
      {5, 5, {"100", "50", "0", "180"}, 1, "180,0"},
  };
  for (const auto& c : cases) {
    if (c.group == 5) form.Edit3.Text = "0,5";
    const std::size_t count = run(c.group, c.nr, c.rows);
    EXPECT_EQ(count, c.messages) << c.group << "," << c.nr << " " << c.rows.back();
    if (count > 0) {
      EXPECT_TRUE(mentions(0, std::string(">> ") + c.limitShown + " << ")) << messages()[0].text;
    }
  }
}

struct RuleCase {
  int group, nr;
  std::vector<std::string> rows;
  int entry;  // the first message entry expected, 0 for none
};

TEST_F(RangeChecks, RulesByElement) {
  const RuleCase cases[] = {
      {3, 1, {"100", "100"}, 7},  // no enlargement
      {3, 1, {"100", "100,1"}, 0},
      {3, 3, {"100", "100"}, 8},  // no narrowing
      {3, 3, {"100", "99,9"}, 0},
      {4, 1, {"100", "100", "180"}, 0},
      {4, 1, {"100", "100", "180,1"}, 9},
      {4, 1, {"100", "100", "15"}, 0},
      {4, 1, {"100", "100", "14,9"}, 10},
      {4, 1, {"100", "99", "90"}, 11},  // R/D below 1
      {4, 3, {"49"}, 13},
      {4, 3, {"500"}, 0},
      {9, 1, {"50", "12,5"}, 0},  // ratio 0.25 within 0.1 .. 0.75
      {9, 1, {"50", "50"}, 25},
      {9, 1, {"100", "76"}, 26},
      {9, 5, {"100", "29,99995"}, 0},  // the bounds are 0.299999 and 0.800001, not 0.3 and 0.8
      {9, 5, {"100", "29,9998"}, 31},
      {9, 5, {"100", "80,00005"}, 0},
      {9, 5, {"100", "80,0002"}, 31},
      {9, 6, {"631", "200"}, 34},
      {9, 7, {"100", "31"}, 37},  // (d/D)^2 = 0.0961 < 0.1
      {9, 7, {"100", "32"}, 0},
      {5, 8, {"100", "201"}, 20},
      {6, 3, {"100", "1001"}, 21},
      {7, 5, {"100", "50"}, 0},
      {7, 5, {"100", "50,1"}, 23},
      {7, 6, {"100", "70,1"}, 24},
      {1, 3, {"100", "100", "1"}, 6},         // no annulus
      {1, 3, {"100", "0,9", "1"}, 5},         // D/Di beyond 100
      {1, 5, {"100", "5", "20", "0,01"}, 3},  // L shorter than T/1000
  };
  for (const auto& c : cases) {
    run(c.group, c.nr, c.rows);
    const std::string where = std::to_string(c.group) + "," + std::to_string(c.nr) + " " + c.rows.back();
    if (c.entry == 0) {  // passes the checks (a laminar flow may still bring its note)
      EXPECT_TRUE(state.Bereich_i_O) << where << ": " << messages().front().text;
      continue;
    }
    ASSERT_FALSE(messages().empty()) << where;
    EXPECT_TRUE(mentions(0, form.words.SV_Bereichspruefung_Elemente[static_cast<std::size_t>(c.entry)])) << where;
    EXPECT_TRUE(mentions(0, form.Statisch_Element_Name1.Caption + "\n" + word(196) + "\n")) << where;
    EXPECT_FALSE(state.Bereich_i_O) << where;
  }
}

TEST_F(RangeChecks, JoinedEntriesAndTheLastFocusWins) {
  run(4, 3, {"600"});
  const auto& entries = form.words.SV_Bereichspruefung_Elemente;
  EXPECT_TRUE(mentions(0, entries[13] + "\n" + entries[14] + "\n" + entries[15]));

  run(4, 1, {"100", "50", "200"});  // angle too large (focus angle), then R/D below 1 (focus diameter)
  EXPECT_EQ(messages().size(), 2u);
  EXPECT_EQ(form.Fokus, &form.Va1_Edit);
}

TEST_F(RangeChecks, TheGateWarningLetsTheRunGoOn) {
  run(7, 4, {"100", "100"});
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].kind, MessageKind::Warning);
  EXPECT_TRUE(state.Bereich_i_O);
  EXPECT_NEAR(static_cast<double>(state.w), 0.0353678, 1e-6);  // computed: 1 m3/h in DN 100
}

TEST_F(RangeChecks, RatiosOfTheCorrugatedPipeAreJudgedOnlyWithAPositiveDivisor) {
  run(1, 5, {"100", "5", "0", "1"});
  ASSERT_EQ(messages().size(), 1u);  // only the zero pitch, no ratio message
  EXPECT_TRUE(mentions(0, ">> 0 << "));
}

TEST_F(RangeChecks, KnownCoefficientAndReversibleElementsNeedTheirSections) {
  EXPECT_EQ(run(12, 1, {"100", "5"}), 0u);
  EXPECT_EQ(run(12, 2, {"100", "0", "2"}), 1u);
  EXPECT_EQ(run(13, 1, {"-10"}), 0u);  // a height may fall
  EXPECT_EQ(run(13, 3, {"100", "100", "0", "100"}), 1u);
}

TEST_F(RangeChecks, ATableCheckNamesTheColumn) {
  run(3, 1, {"100", "100"}, 3);
  EXPECT_EQ(onlyMessageText().rfind(word(140) + ": 3\n" + form.Statisch_Element_Name1.Caption + "\n" + word(196), 0),
            0u);
  run(2, 3, {"100", "90"}, 3);
  EXPECT_EQ(onlyMessageText().rfind(word(140) + ": 3\n" + form.Statisch_Element_Name1.Caption + ":\n", 0), 0u);
  run(2, 3, {"100", "90"}, 0);
  EXPECT_EQ(onlyMessageText().rfind(form.Statisch_Element_Name1.Caption + ":\n", 0), 0u);
}

TEST_F(RangeChecks, TheColumnChangeDialogLendsItsElementName) {
  app.SpalteAendernDlg.Visible = true;
  app.SpalteAendernDlg.Label12.Caption = "Drosselgeräte - Lochscheibe";
  run(9, 4, {"100", "100", "10"});
  EXPECT_EQ(onlyMessageText().rfind("Drosselgeräte - Lochscheibe\n", 0), 0u);
}

TEST_F(RangeChecks, SeveralMessagesInOneRunAndNothingComputed) {
  form.Eingabe_Dichte.Text = "0";
  state.w = 5;
  run(1, 1, {"0", "0"});
  EXPECT_EQ(messages().size(), 3u);  // diameter, length, density
  EXPECT_EQ(state.w, 5);
  EXPECT_EQ(form.Fokus, &form.Eingabe_Dichte);
}

}  // namespace
}  // namespace linecalc::test
