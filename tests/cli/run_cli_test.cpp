#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <nlohmann/json.hpp>

#include "base/meldungen.h"
#include "run_cli.h"
#include "workspace/anwendung.h"

namespace linecalc::test {
namespace {

std::string writeRunFile(const std::string& name, const std::string& content) {
  const std::string path = "/tmp/linecalc-run-" + name + ".json";
  std::ofstream(path) << content;
  return path;
}

const char* kTwoElements = R"({
  "medium": {"flow": "36", "density": "1000", "viscosity": "1000"},
  "elements": [{"group": 1, "element": 1, "va1": "100", "va2": "10", "roughness": "0,05"},
               {"group": 4, "element": 1, "va2": "150", "va3": "90", "pieces": "2"}]
})";

TEST(RunCli, TheRunFileGivesTheTableTheSameInputsGiveThroughTheWindow) {
  const CliResult result = runCli({"--format", "json", "run", writeRunFile("two", kTwoElements)});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto table = nlohmann::json::parse(result.out)["table"];
  ASSERT_EQ(table["columns"].size(), 2u);

  // The same two elements typed into the main window by hand.
  RecordingMeldungen meldungen;
  Anwendung app(meldungen, '.');
  app.start(LINECALC_BUILD_DATA_DIR);
  TMyWindow& form = app.MyWindow;
  form.Eingabe_Volumenstrom.Text = "36";
  form.Eingabe_Dichte.Text = "1000";
  form.Eingabe_Viskositaet.Text = "1000";
  form.Va1_Edit.Text = "100";
  form.Va2_Edit.Text = "10";
  form.Edit2.Text = "0,05";
  form.Berechnen(0);
  app.BtnBottomDlg.press(4, 1);
  app.BtnBottomDlg.OKBtnClick();
  form.Va2_Edit.Text = "150";
  form.Va3_Edit.Text = "90";
  form.VaAnz_Edit.Text = "2";
  form.Berechnen(0);
  const ResultTable& expected = app.Ausgabeneu_Fenster.table();
  ASSERT_EQ(expected.Anzahl_Berechnungen(), 2);
  for (int c = 0; c < 2; ++c) {
    for (const auto& cell : table["columns"][static_cast<std::size_t>(c)]) {
      const int row = cell["row"];
      const Cell& mine = expected.get_Spalte(c).cells[static_cast<std::size_t>(row)];
      if (cell.contains("value")) {
        EXPECT_EQ(cell["value"].get<double>(), static_cast<double>(mine.number.value_or(-1))) << c << " row " << row;
      } else {
        EXPECT_EQ(cell["text"], mine.text) << c << " row " << row;
      }
    }
  }
}

TEST(RunCli, ARefusedElementEndsTheRunWithExitOne) {
  const char* run = R"({"elements": [{"group": 1, "element": 1, "va1": "100"},
                                      {"group": 3, "element": 1, "va2": "50"},
                                      {"group": 1, "element": 1}]})";
  const CliResult result = runCli({"--format", "json", "run", writeRunFile("refused", run)});
  EXPECT_EQ(result.status, 1);
  const auto answer = nlohmann::json::parse(result.out);
  ASSERT_EQ(answer["elements"].size(), 2u);
  EXPECT_FALSE(answer["elements"][1]["column_written"]);
  EXPECT_EQ(answer["elements"][1]["messages"][0]["kind"], "error");
  EXPECT_EQ(answer["table"]["columns"].size(), 1u);
}

TEST(RunCli, MistakesInTheFileAreUsageErrors) {
  EXPECT_EQ(runCli({"run", writeRunFile("typo", R"({"elements": [{"group": 1, "element": 1, "va7": "1"}]})")}).status,
            2);
  EXPECT_EQ(runCli({"run", writeRunFile("broken", "{\"elements\": [")}).status, 2);
  EXPECT_EQ(runCli({"run", "/nonexistent/run.json"}).status, 2);
  const CliResult unit = runCli({"run", writeRunFile("unit", R"({"elements": [{"va1_unit": "furlong"}]})")});
  EXPECT_EQ(unit.status, 2);
  EXPECT_NE(unit.err.find("element 1"), std::string::npos) << unit.err;
}

TEST(RunCli, TheBundledExampleComputes) {
  const CliResult result = runCli({"--format", "csv", "run", LINECALC_SOURCE_DIR "/examples/cooling-water.json"});
  ASSERT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find(",,1,2,3,4,5,6,7,8,9,10\n"), std::string::npos) << result.out.substr(0, 200);
}

}  // namespace
}  // namespace linecalc::test
