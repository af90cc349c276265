// SPDX-License-Identifier: MIT
#include "apps/lumifact/settings_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <thread>

#include "desktop/foundation/property_list.h"
#include "lumifact/loader/settings.h"
#include "tests/desktop/photos/temporary_folder.h"

namespace lumifact::tool {
namespace {

using desktop::photos::contentsOf;
using desktop::photos::TemporaryFolder;

using desktop::foundation::PropertyListFormat;
using model::Dictionary;
using model::Value;

// What the file holds, and how it is written.
desktop::foundation::PropertyList listIn(const std::string& path) {
  const auto list = desktop::foundation::readPropertyList(path);
  EXPECT_TRUE(list) << path;
  return list ? *list : desktop::foundation::PropertyList();
}

std::string listBytes(const Value& root, PropertyListFormat format) {
  const auto bytes = desktop::foundation::serializePropertyList(root, format);
  EXPECT_TRUE(bytes);
  return bytes ? *bytes : "";
}

std::function<void(Dictionary&)> setting(const std::string& key, const Value& value) {
  return [=](Dictionary& settings) { settings.insert_or_assign(key, value); };
}

void clear(Dictionary& settings) {
  settings.clear();
}

TEST(SettingsFile, MakesAMissingFileWithItsFolders) {
  const TemporaryFolder folder;
  const std::string path = folder.file("a/b/settings.plist");
  EXPECT_FALSE(editSettingsFile(path, setting("fontSize", 14)));
  EXPECT_EQ(listIn(path).root, Value(Dictionary{{"fontSize", 14}}));
  EXPECT_EQ(listIn(path).format, PropertyListFormat::xml);
}

TEST(SettingsFile, KeepsFormatModeAndUnknownKeys) {
  for (const auto format : {PropertyListFormat::xml, PropertyListFormat::binary}) {
    const TemporaryFolder folder;
    const Dictionary before{{"theirs", model::Array{1, "x"}}, {"fontSize", 12}};
    const std::string path = folder.write("settings.plist", listBytes(before, format));
    ::chmod(path.c_str(), 0640);
    EXPECT_FALSE(editSettingsFile(path, setting("fontSize", 14)));
    EXPECT_EQ(listIn(path).format, format);
    EXPECT_EQ(listIn(path).root,
              Value(Dictionary{{"theirs", model::Array{1, "x"}}, {"fontSize", 14}}));
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
  }
}

TEST(SettingsFile, LeavesNothingElseBehind) {
  const TemporaryFolder folder;
  EXPECT_FALSE(editSettingsFile(folder.file("settings.plist"), setting("fontSize", 14)));
  EXPECT_FALSE(editSettingsFile(folder.file("settings.plist"), setting("fontSize", 15)));
  int entries = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.path())) {
    ++entries;
  }
  EXPECT_EQ(entries, 1);
}

TEST(SettingsFile, FollowsLinksAndKeepsThem) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.file("real"));
  std::filesystem::create_symlink("real/target.plist", folder.file("link"));
  std::filesystem::create_symlink(folder.file("link"), folder.file("outer"));
  EXPECT_FALSE(editSettingsFile(folder.file("outer"), setting("fontSize", 14)));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("outer")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link")));
  EXPECT_EQ(listIn(folder.file("real/target.plist")).root, Value(Dictionary{{"fontSize", 14}}));
}

TEST(SettingsFile, LeavesAFileThatIsNoDictionaryAlone) {
  for (const std::string& bytes :
       {std::string("not a list"), std::string(), std::string("bplist00junk"),
        listBytes(model::Array{1}, PropertyListFormat::xml)}) {
    const TemporaryFolder folder;
    const std::string path = folder.write("settings.plist", bytes);
    for (const auto after : {AfterEdit::write, AfterEdit::removeIfEmpty}) {
      const auto error = editSettingsFile(path, clear, after);
      ASSERT_TRUE(error) << bytes;
      EXPECT_TRUE(error->reason.starts_with("left as it is")) << error->reason;
      EXPECT_EQ(contentsOf(path), bytes);
    }
  }
}

TEST(SettingsFile, AnEmptiedFileStaysUnlessItMayGo) {
  const TemporaryFolder folder;
  const std::string path = folder.file("settings.plist");
  EXPECT_FALSE(editSettingsFile(path, clear));
  EXPECT_FALSE(std::filesystem::exists(path)) << "nothing to take out of a missing file";
  EXPECT_FALSE(editSettingsFile(path, setting("fontSize", 14)));
  EXPECT_FALSE(editSettingsFile(path, clear));
  EXPECT_EQ(listIn(path).root, Value(Dictionary()));
  EXPECT_FALSE(editSettingsFile(path, clear, AfterEdit::removeIfEmpty));
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(SettingsFile, TellsWhatTheSystemRefuses) {
  const TemporaryFolder folder;
  const auto error = editSettingsFile(folder.path(), setting("fontSize", 14));
  ASSERT_TRUE(error);
  EXPECT_NE(error->reason.find("Is a directory"), std::string::npos) << error->reason;
  folder.write("file", "x");
  EXPECT_TRUE(editSettingsFile(folder.file("file/settings.plist"), setting("fontSize", 14)));
}

TEST(SettingsFile, LosesNothingWhenManyWriteAtOnce) {
  const TemporaryFolder folder;
  const std::string path = folder.file("settings.plist");
  std::vector<std::thread> writers;
  writers.reserve(4);
  for (int writer = 0; writer < 4; ++writer) {
    writers.emplace_back([&, writer] {
      for (int round = 0; round < 10; ++round) {
        const std::string key = std::to_string(writer) + "-" + std::to_string(round);
        EXPECT_FALSE(editSettingsFile(path, setting(key, round)));
      }
    });
  }
  for (std::thread& writer : writers) writer.join();
  EXPECT_EQ(listIn(path).root.asDictionary()->size(), 40U);
}

TEST(SettingText, ReadsByTheKindOfTheKey) {
  struct Case {
    const char* key;
    const char* text;
    Value value;
  };
  const Case cases[] = {
      {"showSelectedSize", "true", true},
      {"showSelectedSize", "yes", true},
      {"showSelectedSize", "YES", true},
      {"showSelectedSize", "1", true},
      {"showSelectedSize", "false", false},
      {"showSelectedSize", "no", false},
      {"showSelectedSize", "0", false},
      {"fontSize", "14", 14},
      {"fontSize", "-5", -5},
      {"fontSize", "+5", 5},
      {"fontSize", "99999999999", 99999999999},
      {"mapZoomLevel", "12.5", 12.5},
      {"mapZoomLevel", "12", 12.0},
      {"mapZoomLevel", "1e2", 100.0},
      {"mapZoomLevel", "-0.5", -0.5},
      {"thumbnailInfoDisplayOneLine", "no", false},
  };
  for (const Case& item : cases) {
    const auto value = settingFromText(item.key, item.text);
    ASSERT_TRUE(value) << item.key << " " << item.text;
    EXPECT_EQ(*value, item.value) << item.key << " " << item.text;
  }
}

TEST(SettingText, RefusesWhatDoesNotReadAsTheKind) {
  const std::pair<const char*, const char*> refused[] = {
      {"showSelectedSize", "maybe"}, {"showSelectedSize", ""},
      {"showSelectedSize", "2"},     {"fontSize", "12.5"},
      {"fontSize", "big"},           {"fontSize", ""},
      {"fontSize", "12 "},           {"fontSize", "+-1"},
      {"fontSize", "0x10"},          {"mapZoomLevel", "nan"},
      {"mapZoomLevel", "inf"},       {"mapZoomLevel", "1e999"},
      {"mapZoomLevel", "1,5"},       {"fontSize", "9999999999999999999"},
  };
  for (const auto& [key, text] : refused) {
    const auto value = settingFromText(key, text);
    ASSERT_FALSE(value) << key << " " << text;
    EXPECT_TRUE(value.error().reason.starts_with(std::string(key) + " takes "))
        << value.error().reason;
  }
}

TEST(SettingText, AnUnknownKeyIsAnsweredWithTheKnownOnes) {
  const auto error = checkSettingKey("fontsize");
  ASSERT_TRUE(error);
  EXPECT_NE(error->reason.find("unknown setting \"fontsize\""), std::string::npos);
  for (const SettingRow& row : settingRows()) {
    EXPECT_NE(error->reason.find(row.key), std::string::npos) << row.key;
    EXPECT_FALSE(checkSettingKey(row.key)) << row.key;
  }
}

}  // namespace
}  // namespace lumifact::tool
