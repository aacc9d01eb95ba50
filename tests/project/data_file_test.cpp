#include "project/data_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "project/envelope.h"

namespace linecalc {
namespace {

class DataFileTest : public ::testing::Test {
 protected:
  std::filesystem::path folder = std::filesystem::temp_directory_path() /
                                 ("linecalc-data-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
                                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
  void SetUp() override { std::filesystem::create_directories(folder); }
  void TearDown() override { std::filesystem::remove_all(folder); }

  std::filesystem::path write(const std::string& name, const std::string& bytes) {
    std::ofstream(folder / name, std::ios::binary) << bytes;
    return folder / name;
  }
  std::filesystem::path writeEnciphered(const std::string& name, const std::string& plain, std::string_view key) {
    std::string enciphered;
    TEncryption(key, kDecipherBufferSize, 1).EncryptStream(plain, enciphered);
    return write(name, enciphered);
  }
};

TEST_F(DataFileTest, LoadsTheLinesIntoTheListOfTheTargetCode) {
  DataLists lists;
  const auto path = writeEnciphered("varglob.gru1", "x\t127\tpipe\tRohrdurchmesser\r\n\t128\t\tHöhe\r\n", Schluessel07);
  Datei_laden_entschluesseln(path, Schluessel07, 'T', lists);
  ASSERT_EQ(lists.GlobalVariablen.size(), 2u);
  EXPECT_EQ(lists.GlobalVariablen[0], "x\t127\tpipe\tRohrdurchmesser");
  EXPECT_EQ(lists.GlobalVariablen[1], "\t128\t\tHöhe");
  EXPECT_TRUE(lists.Sprachdateiliste.empty());
}

TEST_F(DataFileTest, AcceptsWindows1252Plaintext) {
  DataLists lists;
  Datei_laden_entschluesseln(writeEnciphered("medien.stw1", "Wasser\t998\nGlyk\xF6l\n", Schluessel01), Schluessel01,
                             '1', lists);
  EXPECT_EQ(lists.liquids, (std::vector<std::string>{"Wasser\t998", "Glyköl"}));
}

TEST_F(DataFileTest, AWrongKeyLeavesTheListEmptyWithoutAnError) {
  DataLists lists;
  lists.Sprachdateiliste = {"old"};
  Datei_laden_entschluesseln(writeEnciphered("varsonst.gru1", "MyWindow\n", Schluessel07), Schluessel01, 'S', lists);
  EXPECT_TRUE(lists.Sprachdateiliste.empty());
}

TEST_F(DataFileTest, ATwentyByteFileGivesAnEmptyList) {
  DataLists lists;
  Datei_laden_entschluesseln(writeEnciphered("empty.gru1", "", Schluessel07), Schluessel07, 'S', lists);
  EXPECT_EQ(std::filesystem::file_size(folder / "empty.gru1"), 20u);
  EXPECT_TRUE(lists.Sprachdateiliste.empty());
}

TEST_F(DataFileTest, AMissingFileIsAnErrorNamingTheFile) {
  DataLists lists;
  try {
    Datei_laden_entschluesseln(folder / "dadru20.dad1", Schluessel06, 'A', lists);
    FAIL() << "no error for a missing file";
  } catch (const DataFileError& e) {
    EXPECT_NE(std::string(e.what()).find("dadru20.dad1"), std::string::npos) << e.what();
  }
}

TEST_F(DataFileTest, EveryTargetCodeNamesItsOwnList) {
  DataLists lists;
  std::set<std::vector<std::string>*> seen;
  for (const char code : std::string("ABCDEFGH123456ST")) {
    auto* list = lists.byCode(code);
    ASSERT_NE(list, nullptr) << code;
    EXPECT_TRUE(seen.insert(list).second) << code;
  }
  EXPECT_EQ(lists.byCode('Z'), nullptr);
  EXPECT_EQ(lists.byCode('A'), &lists.Siedepunktdateiliste);
}

TEST(SplitTextLines, HandlesLineEndsLikeATextList) {
  EXPECT_EQ(splitTextLines("a\r\nb\nc"), (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(splitTextLines("a\n\nb\n"), (std::vector<std::string>{"a", "", "b"}));
  EXPECT_TRUE(splitTextLines("").empty());
}

}  // namespace
}  // namespace linecalc
