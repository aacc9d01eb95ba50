#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "run_cli.h"

namespace linecalc::test {
namespace {

const std::string kExample = LINECALC_SOURCE_DIR "/examples/cooling-water.json";

std::string slurp(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream buffer;
  buffer << in.rdbuf();
  return buffer.str();
}

TEST(ProjectCli, ARunSavedAsAProjectReadsBackTheSameTable) {
  const std::string file = "/tmp/linecalc-cli-roundtrip.slf";
  const CliResult run = runCli({"--format", "json", "run", kExample, "--save", file});
  ASSERT_EQ(run.status, 0) << run.err;
  const CliResult project = runCli({"--format", "json", "project", file});
  ASSERT_EQ(project.status, 0) << project.err;
  const auto saved = nlohmann::json::parse(run.out)["table"]["columns"];
  const auto opened = nlohmann::json::parse(project.out)["pages"][0]["columns"];
  EXPECT_EQ(opened, saved);
  std::filesystem::remove(file);
}

TEST(ProjectCli, TheCheckReportsTheColumnsThatNoLongerPass) {
  const std::string file = "/tmp/linecalc-cli-check.slf";
  ASSERT_EQ(runCli({"run", kExample, "--save", file}).status, 0);
  // Column 5 is a contraction from 100 to 80 mm; a D2 of 120 mm is no contraction any more.
  std::string bytes = slurp(file);
  const std::string from = "Rohrdurchmesser D2 in mm: 80";
  ASSERT_NE(bytes.find(from), std::string::npos);
  bytes.replace(bytes.find(from), from.size(), "Rohrdurchmesser D2 in mm: 120");
  std::ofstream(file, std::ios::binary) << bytes;

  const CliResult check = runCli({"--format", "json", "project", file, "--check"});
  EXPECT_EQ(check.status, 1);
  const auto result = nlohmann::json::parse(check.out)["pages"][0]["check"];
  EXPECT_FALSE(result["passes"]);
  EXPECT_EQ(result["failed_columns"], nlohmann::json::array({5}));
  std::filesystem::remove(file);
}

TEST(ProjectCli, UnreadableProjectsAreUsageErrors) {
  EXPECT_EQ(runCli({"project", "/nonexistent/x.slf"}).status, 2);
  const std::string file = "/tmp/linecalc-cli-old.slf";
  std::ofstream(file) << "6.0\r\n";
  const CliResult old = runCli({"project", file});
  EXPECT_EQ(old.status, 2);
  EXPECT_NE(old.err.find("6.0"), std::string::npos) << old.err;
  std::filesystem::remove(file);
}

TEST(ProjectCli, ASettingsFileReplacesTheBuiltInDefaults) {
  const std::string settings = "/tmp/linecalc-cli-settings.ini";
  std::ofstream(settings) << "[Allgemein]\nNachkomma=1\n";
  const CliResult result = runCli({"--settings", settings, "element", "--va1", "100"});
  ASSERT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find("998.2\n"), std::string::npos) << result.out;  // the density with one decimal
  EXPECT_EQ(runCli({"--settings", "/nonexistent/settings.ini", "element"}).status, 2);
  std::filesystem::remove(settings);
}

}  // namespace
}  // namespace linecalc::test
