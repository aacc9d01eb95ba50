#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "run_cli.h"

namespace linecalc::test {
namespace {

TEST(ElementsCli, ListsTheWholeCatalogueFromTheDecipheredLanguageFiles) {
  const CliResult result = runCli({"--format", "json", "--language", "D", "elements"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto elements = nlohmann::json::parse(result.out);
  ASSERT_EQ(elements.size(), 65u);
  const auto& bend = elements[14];
  EXPECT_EQ(bend["name"], "Kreiskrümmer");
  EXPECT_EQ(bend["rows"][0]["label"], "Rohrdurchmesser D:");
  EXPECT_EQ(bend["rows"][2]["unit"], "Grad");
  EXPECT_EQ(bend["rows"][2]["default"], "90");
  EXPECT_FALSE(bend["information"].get<std::string>().empty());
}

TEST(ElementsCli, DefaultsTakeTheDecimalSeparator) {
  const CliResult result = runCli({"--separator", ",", "--format", "json", "elements", "--group", "1"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto elements = nlohmann::json::parse(result.out);
  EXPECT_EQ(elements.size(), 6u);
  EXPECT_EQ(elements[0]["rows"][1]["default"], "1,0");
  EXPECT_EQ(elements[0]["rows"][0]["keeps_input"], true);
}

TEST(ElementsCli, AMissingDataFolderIsReportedWithTheFileName) {
  setenv("LINECALC_DATA_DIR", "/nonexistent-linecalc-data", 1);
  const CliResult result = runCli({"elements"});
  unsetenv("LINECALC_DATA_DIR");
  EXPECT_EQ(result.status, 2);
  EXPECT_NE(result.err.find("varsonst.gru1"), std::string::npos) << result.err;
}

}  // namespace
}  // namespace linecalc::test
