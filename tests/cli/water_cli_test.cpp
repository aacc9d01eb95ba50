#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "run_cli.h"

namespace linecalc::test {
namespace {

TEST(WaterCli, PrintsRegionStateAndTheDialogTexts) {
  const CliResult result = runCli({"water", "--pressure", "1,013", "--temperature", "20"});
  ASSERT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out,
            "IAPWS-IF97: 1\n"
            "State: liquid\n"
            "Density: 998.206 kg/m3\n"
            "Specific volume: 0.001 m3/kg\n"
            "Dynamic viscosity: 1001.605 10-6 kg/ms\n");
}

TEST(WaterCli, JsonCarriesBaseUnitsAndTexts) {
  const CliResult result =
      runCli({"--format", "json", "--decimals", "1", "--separator", ",", "water", "-p", "300", "-t", "400"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto json = nlohmann::json::parse(result.out);
  EXPECT_EQ(json["region"], 3);
  EXPECT_EQ(json["state"], "liquid");  // a supercritical state of Region 3 is handed over as a liquid
  const double density = json["density"].get<double>();
  EXPECT_NEAR(density, 357.6, 0.05);  // 400 °C, 30 MPa
  EXPECT_DOUBLE_EQ(json["specific_volume"].get<double>(), 1 / density);
  EXPECT_EQ(json["texts"]["density"]["text"], "357,6");
  EXPECT_EQ(json["texts"]["density"]["unit"], "kg/m3");
  EXPECT_EQ(json["units"]["viscosity"], "10-6 kg/ms");
}

TEST(WaterCli, ReadsTheDialogsUnits) {
  const CliResult result = runCli({"--format", "json", "water", "-p", "14.7", "--pressure-unit", "psia", "-t", "400",
                                   "--temperature-unit", "degF"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto json = nlohmann::json::parse(result.out);
  EXPECT_EQ(json["region"], 2);
  EXPECT_EQ(json["state"], "gas");
}

TEST(WaterCli, RefusalsAndUsageErrors) {
  const CliResult outside = runCli({"--format", "json", "water", "-p", "1", "-t", "950"});
  EXPECT_EQ(outside.status, 1);
  const auto json = nlohmann::json::parse(outside.out);
  EXPECT_FALSE(json["computed"].get<bool>());
  ASSERT_EQ(json["messages"].size(), 1u);
  EXPECT_EQ(json["messages"][0]["kind"], "error");

  const CliResult notANumber = runCli({"water", "-p", "1,0x", "-t", "20"});
  EXPECT_EQ(notANumber.status, 1);
  EXPECT_NE(notANumber.err.find("\"1,0x\"!"), std::string::npos) << notANumber.err;

  const CliResult unit = runCli({"water", "-p", "1", "--pressure-unit", "furlong", "-t", "20"});
  EXPECT_EQ(unit.status, 2);
  EXPECT_NE(unit.err.find("unknown pressure unit \"furlong\""), std::string::npos) << unit.err;
  EXPECT_EQ(runCli({"water", "-p", "1"}).status, 2);
}

TEST(WaterSaturationCli, FromATemperatureInGerman) {
  const CliResult result = runCli({"--language", "D", "--separator", ",", "water-saturation", "-t", "100"});
  ASSERT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out,
            "Dampfdruck: 1,014 bar\n"
            "Dampf\n"
            "Dichte: 0,598 kg/m3\n"
            "Spezifisches Volumen: 1,672 m3/kg\n"
            "Dynamische Viskosität: 12,269 10-6 kg/ms\n"
            "Flüssigkeit\n"
            "Dichte: 958,354 kg/m3\n"
            "Spezifisches Volumen: 0,001 m3/kg\n"
            "Dynamische Viskosität: 281,745 10-6 kg/ms\n");
}

TEST(WaterSaturationCli, FromAPressureAsJson) {
  const CliResult result =
      runCli({"--format", "json", "water-saturation", "--pressure", "10", "--temperature-unit", "K"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto json = nlohmann::json::parse(result.out);
  EXPECT_EQ(json["given"], "pressure");
  EXPECT_NEAR(json["temperature"].get<double>(), 453.035632, 1e-6);  // IAPWS-IF97 Table 36
  EXPECT_EQ(json["computed_text"]["text"], "453.036");
  EXPECT_EQ(json["computed_text"]["unit"], "K");
  EXPECT_LT(json["vapour"]["density"].get<double>(), json["liquid"]["density"].get<double>());
}

TEST(WaterSaturationCli, RangeAndUsage) {
  EXPECT_EQ(runCli({"water-saturation", "-t", "646,15", "--temperature-unit", "K"}).status, 0);
  EXPECT_EQ(runCli({"water-saturation", "-t", "646,16", "--temperature-unit", "K"}).status, 1);
  EXPECT_EQ(runCli({"water-saturation", "-p", "220,01"}).status, 1);
  EXPECT_EQ(runCli({"water-saturation"}).status, 2);
  EXPECT_EQ(runCli({"water-saturation", "-t", "100", "-p", "1"}).status, 2);
  const CliResult help = runCli({"water-saturation", "--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("Examples:"), std::string::npos);
}

}  // namespace
}  // namespace linecalc::test
