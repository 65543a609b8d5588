#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "host/Document.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

const fs::path kGame = fs::path(SAMPLES_FOLDER) / "Game";

std::string ReadBytes(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

unsigned BigEndian(const std::string& bytes, std::size_t at) {
  unsigned number = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    number = number << 8 | static_cast<unsigned char>(bytes.at(at + i));
  }
  return number;
}

TEST(SampleDocumentTest, LoadsAndNamesFilesThatExist) {
  const Document document = Document::Load(kGame / "Game.qud.json");
  const int count = std::stoi(document.Data("com.tav.moresh.included.count")->get<std::string>());
  ASSERT_EQ(count, 2);
  for (int i = 0; i < count; ++i) {
    const auto item = document.Data("com.tav.moresh.included.item" + std::to_string(i));
    EXPECT_TRUE(fs::is_regular_file(kGame / item->get<std::string>())) << *item;
  }
  EXPECT_TRUE(fs::is_regular_file(kGame / document.ExternalLibraryPath()));
}

TEST(SampleDocumentTest, IconsHaveTheSizesThatTheDescriptorNames) {
  const std::string descriptor = ReadBytes(kGame / "Game-app.xml");
  for (const unsigned size : {36U, 48U, 72U, 96U, 144U, 192U}) {
    const std::string name = std::to_string(size) + "x" + std::to_string(size);
    const std::string file = "icons/icon" + name + ".png";
    EXPECT_THAT(descriptor, HasSubstr("<image" + name + ">" + file + "</image" + name + ">"));
    const std::string png = ReadBytes(kGame / file);
    EXPECT_EQ(BigEndian(png, 16), size);
    EXPECT_EQ(BigEndian(png, 20), size);
  }
}

}  // namespace
}  // namespace qutav::host
