// The worked examples of the README run as they stand there and print exactly what it shows.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "run_cli.h"

namespace linecalc::test {
namespace {

struct Example {
  std::vector<std::string> arguments;
  std::string expected;
};

// The "$ linecalc-cli ..." lines of the section "Worked examples" with the lines that follow them.
std::vector<Example> readmeExamples() {
  std::ifstream in(LINECALC_SOURCE_DIR "/README.md");
  std::vector<Example> examples;
  bool inSection = false, inBlock = false;
  for (std::string line; std::getline(in, line);) {
    if (line.rfind("## ", 0) == 0) inSection = line == "## Worked examples";
    if (!inSection) continue;
    if (line.rfind("```", 0) == 0) {
      inBlock = !inBlock;
      continue;
    }
    if (!inBlock) continue;
    if (line.rfind("$ linecalc-cli ", 0) == 0) {
      Example example;
      std::istringstream words(line.substr(15));
      for (std::string word; words >> word;) {
        if (word.rfind("examples/", 0) == 0) word = LINECALC_SOURCE_DIR "/" + word;
        example.arguments.push_back(word);
      }
      examples.push_back(example);
    } else if (!examples.empty()) {
      examples.back().expected += line + "\n";
    }
  }
  return examples;
}

TEST(ReadmeExamples, PrintWhatTheReadmeShows) {
  const auto examples = readmeExamples();
  ASSERT_EQ(examples.size(), 3u);
  for (const auto& example : examples) {
    const CliResult result = runCli(example.arguments);
    EXPECT_EQ(result.status, 0) << example.arguments.back() << ": " << result.err;
    EXPECT_EQ(result.out, example.expected) << example.arguments.back();
  }
}

}  // namespace
}  // namespace linecalc::test
