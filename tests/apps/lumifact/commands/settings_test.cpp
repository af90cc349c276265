// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "foundation/property_lists/property_list.h"
#include "tests/apps/lumifact/tool_runner.h"
#include "tests/support/temporary_folder.h"

namespace lumifact::tool {
namespace {

using support::contentsOf;
using support::TemporaryFolder;

constexpr const char* defaults =
    "useNavigationButton = 1\n"
    "useLongPressPhoto = 1\n"
    "showSelectedSize = 0\n"
    "thumbnailInfoDisplay = 1\n"
    "thumbnailInfoDisplaySolid = 1\n"
    "thumbnailInfoDisplayOneLine = (no effect)\n"
    "thumbnailQuickInfo = 0\n"
    "mapType = 0\n"
    "mapZoomLevel = 19\n"
    "mapViewType = 0\n"
    "fontSize = 12\n"
    "viewType = 1\n"
    "useGridSizeButton = 0\n";

class SettingsCommand : public testing::Test {
 protected:
  ToolResult settings(std::vector<std::string> words) {
    words.insert(words.begin(), {"settings", "--settings", _file});
    return runTool(words);
  }
  void expectDone(const std::vector<std::string>& words, const std::string& output = "") {
    const ToolResult result = settings(words);
    EXPECT_EQ(result.status, 0) << result.messages;
    EXPECT_EQ(result.output, output);
  }

  TemporaryFolder _folder;
  std::string _file = _folder.file("settings.plist");
};

TEST_F(SettingsCommand, ListsTheDefaultsWithoutAFile) {
  expectDone({}, defaults);
  EXPECT_FALSE(std::filesystem::exists(_file));
}

TEST_F(SettingsCommand, SetsGetsAndUnsets) {
  expectDone({"set", "fontSize", "14"});
  expectDone({"get", "fontSize"}, "14\n");
  expectDone({"get", "mapZoomLevel"}, "0\n");
  expectDone({"set", "mapZoomLevel", "12.5"});
  expectDone({"get", "mapZoomLevel"}, "12.5\n");
  expectDone({"set", "showSelectedSize", "yes"});
  expectDone({"get", "showSelectedSize"}, "1\n");
  expectDone({"set", "fontSize", "--unset"});
  expectDone({"get", "fontSize"}, "12\n");
  expectDone({"reset"});
  expectDone({}, defaults);
}

TEST_F(SettingsCommand, ForcesTheSolidBar) {
  expectDone({"set", "thumbnailInfoDisplaySolid", "false"});
  expectDone({"get", "thumbnailInfoDisplaySolid"}, "1\n");
}

TEST_F(SettingsCommand, ResetKeepsWhatOthersWrote) {
  const auto bytes = foundation::serializePropertyList(
      model::Dictionary{{"fontSize", 14}, {"theirs", "x"}}, foundation::PropertyListFormat::binary);
  ASSERT_TRUE(bytes);
  _folder.write("settings.plist", *bytes);
  expectDone({"reset"});
  const auto list = foundation::readPropertyList(_file);
  ASSERT_TRUE(list);
  EXPECT_EQ(list->root, model::Value(model::Dictionary{{"theirs", "x"}}));
  EXPECT_EQ(list->format, foundation::PropertyListFormat::binary);
}

TEST_F(SettingsCommand, RefusesUnknownKeysAndOtherKinds) {
  for (const std::vector<std::string>& words : {std::vector<std::string>{"get", "fontsize"},
                                                {"set", "fontsize", "1"},
                                                {"set", "fontsize", "--unset"},
                                                {"set", "fontSize", "big"}}) {
    const ToolResult result = settings(words);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(result.messages.find("fontSize"), std::string::npos) << result.messages;
  }
  EXPECT_FALSE(std::filesystem::exists(_file));
}

TEST_F(SettingsCommand, LeavesADamagedFileAlone) {
  _folder.write("settings.plist", "damaged");
  expectDone({}, defaults);
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"set", "fontSize", "14"}, {"reset"}}) {
    const ToolResult result = settings(words);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.messages.starts_with("lumifact: " + _file + ": left as it is"))
        << result.messages;
    EXPECT_EQ(contentsOf(_file), "damaged");
  }
}

TEST_F(SettingsCommand, LiesBelowTheRootByDefault) {
  const std::string root = _folder.file("root");
  EXPECT_EQ(runTool({"--root", root, "settings", "set", "mapType", "1"}).status, 0);
  EXPECT_TRUE(
      std::filesystem::exists(root + "/var/mobile/Library/Preferences/net.korvu.lumifact.plist"));
  EXPECT_EQ(runTool({"map-link", "--root", root, "--coordinates", "1,2"}).output,
            "comgooglemaps://?center=1,2\n");
}

TEST_F(SettingsCommand, AnOptionGoesBeforeTheFile) {
  expectDone({"set", "mapType", "1"});
  expectDone({"get", "mapType", "--map-type", "0"}, "0\n");
}

}  // namespace
}  // namespace lumifact::tool
