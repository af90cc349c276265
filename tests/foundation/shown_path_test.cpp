// SPDX-License-Identifier: MIT
#include "foundation/shown_path.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace foundation {
namespace {

class ShownPathTest : public testing::Test {
 protected:
  ShownPathTest() {
    std::string pattern = testing::TempDir() + "shown-path-XXXXXX";
    _folder = ::mkdtemp(pattern.data());
  }
  ~ShownPathTest() override { std::filesystem::remove_all(_folder); }

  std::string make(const std::string& name) const {
    const std::string path = _folder + "/" + name;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream stream(path);
    return path;
  }

  std::string _folder;
};

TEST_F(ShownPathTest, findsTheFileOfAShownName) {
  const std::string file = make("\xE9t\xE9/\xFF.jpg");
  make("\xE9t\xE9/other.jpg");
  EXPECT_EQ(fileOfShownPath(_folder + "/\uFFFDt\uFFFD/\uFFFD.jpg"), file);
}

TEST_F(ShownPathTest, aNameThatReallyHoldsTheCharacterIsFoundToo) {
  const std::string file = make("\uFFFD/\xFF.jpg");
  EXPECT_EQ(fileOfShownPath(_folder + "/\uFFFD/\uFFFD.jpg"), file);
}

TEST_F(ShownPathTest, theFirstOfSeveralIsTaken) {
  make("\xFF.jpg");
  const std::string first = make("\xFE.jpg");
  EXPECT_EQ(fileOfShownPath(_folder + "/\uFFFD.jpg"), first);
}

TEST_F(ShownPathTest, whatIsNotThereIsNotFound) {
  make("\xFF.jpg");
  for (const char* name : {"\uFFFD.png", "\uFFFD\uFFFD.jpg", "\uFFFD.jpg/x", "none/\uFFFD.jpg"}) {
    EXPECT_EQ(fileOfShownPath(_folder + "/" + name), std::nullopt) << name;
  }
  EXPECT_EQ(fileOfShownPath(make("plain.jpg")), std::nullopt);
}

}  // namespace
}  // namespace foundation
