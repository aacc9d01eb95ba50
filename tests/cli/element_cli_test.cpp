#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "run_cli.h"

namespace linecalc::test {
namespace {

TEST(ElementCli, APipeAgainstAHandCalculation) {
  // DN 100, 36 m3/h of a medium of 1000 kg/m3 and 1 mPa s: w = 1.2732395 m/s, Re = 127324.
  const CliResult result = runCli({"--format", "json", "element", "-g", "1", "-e", "1", "--va1", "100", "--va2", "10",
                                   "--flow", "36", "--density", "1000", "--viscosity", "1000", "--roughness", "0"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto json = nlohmann::json::parse(result.out);
  EXPECT_TRUE(json["column_written"]);
  EXPECT_TRUE(json["messages"].empty());
  const auto& state = json["state"];
  EXPECT_NEAR(state["w"].get<double>(), 1.2732395447, 1e-10);
  EXPECT_NEAR(state["Re"].get<double>(), 127323.95447, 1e-5);
  // smooth pipe at Re 1.27e5: Colebrook gives lambda = 0.01705; loss = lambda * 10/0.1 * 1000 * w^2/2 / 1e5 bar
  const double lambda = state["Lambda"].get<double>();
  EXPECT_NEAR(lambda, 0.01705, 2e-4);
  EXPECT_NEAR(state["Delta_P"].get<double>(), lambda * 100 * 1000 * 1.2732395447 * 1.2732395447 / 2 / 1e5, 1e-12);
  bool sumFound = false;
  for (const auto& row : json["column"]) {
    if (row["row"] == 33) sumFound = row["value"].get<double>() == state["Delta_P"].get<double>();
  }
  EXPECT_TRUE(sumFound);
}

TEST(ElementCli, ARefusedInputExitsWithOneAndItsMessage) {
  const CliResult text = runCli({"element", "-g", "2", "-e", "3", "--va2", "95"});
  EXPECT_EQ(text.status, 1);
  EXPECT_NE(text.err.find("90.0"), std::string::npos) << text.err;
  EXPECT_TRUE(text.out.empty());

  const CliResult json = runCli({"--format", "json", "element", "-g", "2", "-e", "3", "--va2", "95"});
  EXPECT_EQ(json.status, 1);
  const auto answer = nlohmann::json::parse(json.out);
  EXPECT_FALSE(answer["column_written"]);
  ASSERT_EQ(answer["messages"].size(), 1u);
  EXPECT_EQ(answer["messages"][0]["kind"], "error");
}

TEST(ElementCli, UnitsAndElementsTheProgramDoesNotOfferAreUsageErrors) {
  EXPECT_EQ(runCli({"element", "-g", "8", "-e", "4"}).status, 2);
  const CliResult unit = runCli({"element", "-g", "1", "-e", "1", "--va1-unit", "cm"});
  EXPECT_EQ(unit.status, 2);
  EXPECT_NE(unit.err.find("mm, in."), std::string::npos) << unit.err;
}

TEST(ElementCli, AGasInStandardUnits) {
  const CliResult result = runCli({"--format", "json",
                                   "element",  "--state",
                                   "gas",      "--flow-kind",
                                   "standard", "--flow",
                                   "500",      "--flow-unit",
                                   "Nm3/h",    "--density",
                                   "1,2",      "--viscosity",
                                   "18",       "--inlet-pressure",
                                   "3",        "--inlet-temperature",
                                   "15",       "--outlet-temperature",
                                   "15"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto state = nlohmann::json::parse(result.out)["state"];
  // 500 Nm3/h at 3 bar and 288.15 K: 500 * 1.01325 * 288.15 / 3 / 273.15 m3/h
  EXPECT_NEAR(state["Volumenstrom"].get<double>(), 500 * 1.01325 * 288.15 / 3 / 273.15, 1e-9);
}

}  // namespace
}  // namespace linecalc::test
