// SPDX-License-Identifier: MIT
//
// Settings from the file to the values that hooks read, by the notification that says that the
// file changed.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <functional>
#include <string>

#include "bridge/bound.h"
#include "foundation/property_lists/property_list.h"
#include "tests/lumifact/loader/loaded_extension.h"

namespace lumifact::host {
namespace {

using foundation::PropertyListFormat;
using foundation::serializePropertyList;

constexpr char changed[] = "net.korvu.lumifact/preferences";

std::string xmlList(const std::string& entries) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + entries +
         "</dict></plist>";
}

std::string xmlEntry(const std::string& key, const std::string& value) {
  return "<key>" + key + "</key>" + value;
}

Settings withoutZoom() {
  Settings settings;
  settings.mapZoomLevel = 0;
  return settings;
}

// Every key with a value that is no default.
model::Dictionary allKeys() {
  return {{"useNavigationButton", false},
          {"useLongPressPhoto", false},
          {"showSelectedSize", true},
          {"thumbnailInfoDisplay", 3},
          {"thumbnailInfoDisplaySolid", false},
          {"thumbnailInfoDisplayOneLine", true},
          {"thumbnailQuickInfo", 2},
          {"mapType", 1},
          {"mapZoomLevel", 7.5},
          {"mapViewType", 2},
          {"fontSize", 18},
          {"viewType", 0},
          {"useGridSizeButton", true}};
}

Settings ofAllKeys() {
  return {.useNavigationButton = false,
          .useLongPressPhoto = false,
          .showSelectedSize = true,
          .thumbnailInfoDisplay = 3,
          .thumbnailInfoDisplaySolid = true,
          .thumbnailQuickInfo = 2,
          .mapType = 1,
          .mapZoomLevel = 7.5,
          .mapViewType = 2,
          .fontSize = 18,
          .viewType = 0,
          .useGridSizeButton = true};
}

class SettingsReloadTest : public testing::Test {
 protected:
  // The settings in effect after the file was announced.
  const Settings& reload() const {
    host.notify(changed);
    return loadedExtension().probe->settings;
  }
  const Settings& reload(const std::string& file) const {
    host.writeSettings(file);
    return reload();
  }
  const Settings& reload(const model::Dictionary& file, PropertyListFormat format) const {
    return reload(*serializePropertyList(file, format));
  }
  // Settings that no bad file gives.
  void loadOtherSettings() const { reload(allKeys(), PropertyListFormat::xml); }

  const ExtensionHost& host = loadedExtension().host;
};

TEST_F(SettingsReloadTest, WithoutAFileAreTheDefaultsOfAMissingOne) {
  loadOtherSettings();
  host.removeSettings();
  const Settings& settings = reload();
  EXPECT_EQ(settings, Settings{});
  EXPECT_EQ(settings.mapZoomLevel, 19.0);
}

TEST_F(SettingsReloadTest, AFileWithoutTheKeysDiffersInTheZoomLevelOnly) {
  loadOtherSettings();
  EXPECT_EQ(reload(xmlList("")), withoutZoom());
  loadOtherSettings();
  EXPECT_EQ(reload(xmlList(xmlEntry("somebodyElses", "<true/>"))), withoutZoom());
}

TEST_F(SettingsReloadTest, BinaryAndXmlFilesGiveTheSameSettings) {
  EXPECT_EQ(reload(allKeys(), PropertyListFormat::xml), ofAllKeys());
  host.removeSettings();
  reload();
  EXPECT_EQ(reload(allKeys(), PropertyListFormat::binary), ofAllKeys());
}

TEST_F(SettingsReloadTest, TheSolidCaptionIsForced) {
  const std::string off = xmlList(xmlEntry("thumbnailInfoDisplaySolid", "<false/>"));
  EXPECT_TRUE(reload(off).thumbnailInfoDisplaySolid);
  EXPECT_TRUE(reload(off).thumbnailInfoDisplaySolid);
}

TEST_F(SettingsReloadTest, TheOneLineKeyChangesNothing) {
  for (const char* value : {"<true/>", "<integer>7</integer>", "<string>no</string>", "<dict/>"})
    EXPECT_EQ(reload(xmlList(xmlEntry("thumbnailInfoDisplayOneLine", value))), withoutZoom())
        << value;
}

TEST_F(SettingsReloadTest, OtherNotificationsReloadNothing) {
  loadOtherSettings();
  host.removeSettings();
  host.notify("net.korvu.lumifact/preferences2");
  host.notify("net.korvu.lumifact");
  EXPECT_EQ(loadedExtension().probe->settings, ofAllKeys());
}

TEST_F(SettingsReloadTest, ADeletedKeyFallsBackToItsDefaultOfAnAbsentKey) {
  EXPECT_EQ(reload(xmlList(xmlEntry("mapZoomLevel", "<real>12</real>"))).mapZoomLevel, 12.0);
  EXPECT_EQ(reload(xmlList("")).mapZoomLevel, 0.0);
}

TEST_F(SettingsReloadTest, NothingIsCheckedForItsRange) {
  const Settings& settings = reload(xmlList(xmlEntry("mapType", "<integer>77</integer>") +
                                            xmlEntry("viewType", "<integer>-5</integer>") +
                                            xmlEntry("fontSize", "<integer>0</integer>")));
  EXPECT_EQ(settings.mapType, 77);
  EXPECT_EQ(settings.viewType, -5);
  EXPECT_EQ(settings.fontSize, 0);
}

TEST_F(SettingsReloadTest, ALineIsMeasuredInTheSystemFont) {
  EXPECT_EQ(loadedExtension().probe->infoLineHeight, 16.0);
  reload(xmlList(xmlEntry("fontSize", "<integer>40</integer>")));
  EXPECT_EQ(loadedExtension().probe->infoLineHeight, 16.0);
}

TEST_F(SettingsReloadTest, ValuesOfOtherKindsAreConverted) {
  struct {
    const char* key;
    const char* value;
    double expected;
  } constexpr cases[] = {
      {"fontSize", "<string>24</string>", 24},
      {"fontSize", "<string> 24 points</string>", 24},
      {"fontSize", "<string>large</string>", 0},
      {"fontSize", "<true/>", 1},
      {"fontSize", "<real>13.9</real>", 13},
      {"fontSize", "<integer>4294967298</integer>", 2},
      {"fontSize", "<integer>18446744073709551602</integer>", -14},
      {"fontSize", "<string>99999999999</string>", 2147483647},
      {"fontSize", "<real>1e300</real>", 2147483647},
      {"fontSize", "<real>-1e300</real>", -2147483648.0},
      {"fontSize", "<real>nan</real>", 0},
      {"mapZoomLevel", "<integer>5</integer>", 5},
      {"mapZoomLevel", "<integer>18446744073709551615</integer>", 18446744073709551616.0},
      {"mapZoomLevel", "<string>7.5 km</string>", 7.5},
      {"mapZoomLevel", "<real>0.1</real>", static_cast<double>(0.1F)},
      {"showSelectedSize", "<string>YES</string>", 1},
      {"showSelectedSize", "<string>no</string>", 0},
      {"showSelectedSize", "<integer>256</integer>", 1},
      {"showSelectedSize", "<integer>9223372036854775808</integer>", 1},
      {"useNavigationButton", "<real>0</real>", 0},
  };
  for (const auto& [key, value, expected] : cases) {
    loadOtherSettings();
    const model::Value effective = settingValue(reload(xmlList(xmlEntry(key, value))), key);
    const double number = effective.asReal()      ? *effective.asReal()
                          : effective.asBoolean() ? *effective.asBoolean()
                                                  : static_cast<double>(*effective.asInteger());
    EXPECT_EQ(number, expected) << key << " " << value;
  }
}

TEST_F(SettingsReloadTest, AZoomLevelThatIsNoNumberStaysNone) {
  EXPECT_NE(reload(xmlList(xmlEntry("mapZoomLevel", "<real>nan</real>"))).mapZoomLevel,
            loadedExtension().probe->settings.mapZoomLevel);
  EXPECT_EQ(reload(xmlList("")), withoutZoom());
}

TEST_F(SettingsReloadTest, ValuesWithoutAConversionCountAsAbsent) {
  for (const char* value : {"<array><integer>1</integer></array>", "<dict/>", "<data>AAEC</data>",
                            "<date>2020-01-01T00:00:00Z</date>"}) {
    std::string entries;
    for (const SettingRow& row : settingRows()) entries += xmlEntry(std::string(row.key), value);
    loadOtherSettings();
    EXPECT_EQ(reload(xmlList(entries)), withoutZoom()) << value;
  }
}

// A binary property list: an array, or a dictionary, whose only element is the list itself.
std::string listThatContainsItself(char marker) {
  std::string bytes = "bplist00";
  bytes += {marker, 0};
  if (static_cast<unsigned char>(marker) == 0xD1) bytes += '\0';
  const auto tableAt = static_cast<char>(bytes.size());
  bytes += '\x08';
  bytes += std::string(6, '\0') + "\x01\x01";
  bytes += std::string(7, '\0') + '\x01' + std::string(8, '\0') + std::string(7, '\0') + tableAt;
  return bytes;
}

std::string nested(const std::string& open, const std::string& close, std::size_t levels) {
  std::string text = "<plist version=\"1.0\">";
  for (std::size_t level = 0; level < levels; ++level) text += open;
  for (std::size_t level = 0; level < levels; ++level) text += close;
  return text + "</plist>";
}

struct BadFile {
  const char* what;
  std::function<void(const ExtensionHost&)> make;
};

BadFile holding(const char* what, std::string bytes) {
  return {what,
          [bytes = std::move(bytes)](const ExtensionHost& host) { host.writeSettings(bytes); }};
}

std::vector<BadFile> badFiles() {
  const std::string xml = *serializePropertyList(allKeys(), PropertyListFormat::xml);
  const std::string binary = *serializePropertyList(allKeys(), PropertyListFormat::binary);
  return {
      holding("empty", ""),
      holding("XML cut off", xml.substr(0, xml.size() / 2)),
      holding("binary cut off", binary.substr(0, binary.size() / 2)),
      holding("binary without its end", binary.substr(0, binary.size() - 1)),
      holding("text", "fontSize = 14\n"),
      holding("zeros", std::string(4096, '\0')),
      holding("an array", "<plist version=\"1.0\"><array/></plist>"),
      holding("a string", "<plist version=\"1.0\"><string>x</string></plist>"),
      holding("arrays nested deeply", nested("<array>", "</array>", 100'000)),
      holding("dictionaries nested deeply", nested("<dict><key>a</key>", "</dict>", 40'000)),
      holding("an array in itself", listThatContainsItself('\xA1')),
      holding("a dictionary in itself", listThatContainsItself('\xD1')),
      {"a folder",
       [](const ExtensionHost& host) { std::filesystem::create_directory(host.settingsFile()); }},
      {"a pipe",
       [](const ExtensionHost& host) { ASSERT_EQ(mkfifo(host.settingsFile().c_str(), 0600), 0); }},
      {"a loop of links",
       [](const ExtensionHost& host) {
         std::filesystem::create_symlink(host.settingsFile(), host.settingsFile());
       }},
      {"a link to nothing",
       [](const ExtensionHost& host) {
         std::filesystem::create_symlink("/nobody/has/this", host.settingsFile());
       }},
      {"a gigabyte",
       [](const ExtensionHost& host) {
         host.writeSettings("");
         std::filesystem::resize_file(host.settingsFile(), 1U << 30);
       }},
  };
}

TEST_F(SettingsReloadTest, BadFilesMeanTheDefaultsOfAMissingOneWithoutAWord) {
  for (const BadFile& file : badFiles()) {
    loadOtherSettings();
    host.removeSettings();
    file.make(host);
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    const Settings settings = reload();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "") << file.what;
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << file.what;
    EXPECT_EQ(settings, Settings{}) << file.what;
    EXPECT_EQ(reload(allKeys(), PropertyListFormat::binary), ofAllKeys()) << file.what;
  }
}

TEST_F(SettingsReloadTest, AFileOfSomebodyElseIsReadWhereItCanBe) {
  host.writeSettings(*serializePropertyList(allKeys(), PropertyListFormat::xml));
  if (chown(host.settingsFile().c_str(), 65534, 65534) != 0) GTEST_SKIP() << "not privileged";
  EXPECT_EQ(reload(), ofAllKeys());
}

TEST_F(SettingsReloadTest, AThousandReloadsLeaveNoFontBehind) {
  const long before = bridge::liveBoundObjects();
  for (int turn = 0; turn < 1000; ++turn) host.notify(changed);
  EXPECT_EQ(bridge::liveBoundObjects(), before);
}

}  // namespace
}  // namespace lumifact::host
