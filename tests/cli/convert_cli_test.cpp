#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "run_cli.h"

namespace linecalc::test {
namespace {

TEST(ConvertCli, ConvertsWithCommaOrPointAndPrintsText) {
  const CliResult result = runCli({"convert", "--quantity", "pressure", "--from", "bar", "--to", "mbar", "1,5"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out, "1.5 bar = 1500 mbar\n");

  const CliResult comma = runCli({"--separator", ",", "convert", "-q", "length", "--from", "ft.", "--to", "m", "10"});
  EXPECT_EQ(comma.out, "10 ft. = 3,048 m\n");
}

TEST(ConvertCli, JsonCarriesTheResultInFullPrecision) {
  const CliResult result =
      runCli({"convert", "--quantity", "volume-flow", "--from", "gal/min", "--to", "m3/h", "1", "--format", "json"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto json = nlohmann::json::parse(result.out);
  EXPECT_EQ(json["base_unit"], "m3/h");
  // 0.158987 m3 per 42 gallons, times 60 minutes
  EXPECT_DOUBLE_EQ(json["result"].get<double>(), 0.158987 / 42 * 60);
}

TEST(ConvertCli, RefusesUnknownUnitsAndTextsThatAreNoNumber) {
  const CliResult unknown = runCli({"convert", "-q", "pressure", "--from", "furlong", "--to", "bar", "1"});
  EXPECT_EQ(unknown.status, 1);
  EXPECT_NE(unknown.err.find("unknown pressure unit \"furlong\""), std::string::npos) << unknown.err;

  const CliResult notANumber =
      runCli({"convert", "-q", "pressure", "--from", "psi", "--to", "bar", "1,0.5", "--format", "json"});
  EXPECT_EQ(notANumber.status, 1);
  EXPECT_EQ(nlohmann::json::parse(notANumber.out)["error"], "\"1,0.5\" is not a number");
}

TEST(ConvertCli, UsageErrorsExitWithTwo) {
  EXPECT_EQ(runCli({"convert", "-q", "acceleration", "--from", "a", "--to", "b", "1"}).status, 2);
  EXPECT_EQ(runCli({"convert", "-q", "pressure"}).status, 2);
  EXPECT_EQ(runCli({"no-such-command"}).status, 2);
}

TEST(ConvertCli, ListsTheUnitsOfAQuantity) {
  const CliResult result = runCli({"convert", "-q", "temperature", "--list", "--format", "json"});
  ASSERT_EQ(result.status, 0);
  const auto json = nlohmann::json::parse(result.out);
  EXPECT_EQ(json["base_unit"], "K");
  EXPECT_EQ(json["units"].size(), 6u);
}

}  // namespace
}  // namespace linecalc::test
