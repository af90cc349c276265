// SPDX-License-Identifier: MIT
#include "foundation/device_root.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/foundation/environment.h"
#include "tests/support/temporary_folder.h"

namespace foundation {
namespace {

TEST(DeviceRootTest, pathsOfTheDeviceLieBelowTheRoot) {
  const DeviceRoot root("/data/phone");
  const struct {
    std::string_view onDevice;
    std::string_view onDisk;
  } cases[] = {
      {"/var/mobile", "/data/phone/var/mobile"},
      {"/var/mobile/", "/data/phone/var/mobile/"},
      {"/var/mobile/Media/DCIM/a.JPG", "/data/phone/var/mobile/Media/DCIM/a.JPG"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(root.onDisk(row.onDevice), row.onDisk);
    EXPECT_EQ(root.onDevice(row.onDisk), row.onDevice);
  }
}

TEST(DeviceRootTest, allOtherPathsAreAsTheyAre) {
  const DeviceRoot root("/data/phone");
  for (const std::string_view path :
       {"/home/me/a.JPG", "/var/mobiles/a", "/var", "", "var/mobile/a", "/data/phone",
        "/data/phone/else", "/data/phone/var/mobiles", "/data/phones/var/mobile/a"}) {
    EXPECT_EQ(root.onDisk(path), path);
    EXPECT_EQ(root.onDevice(path), path);
  }
}

TEST(DeviceRootTest, theFolderIsAbsoluteAndEndsInNoSlash) {
  EXPECT_EQ(DeviceRoot("/data/phone//").folder(), "/data/phone");
  EXPECT_EQ(DeviceRoot("phone/./x/..").folder(),
            (std::filesystem::current_path() / "phone").string());
}

TEST(DeviceRootTest, linksToTheRootAreFollowed) {
  const support::TemporaryFolder folder;
  std::filesystem::create_directory(folder.file("phone"));
  std::filesystem::create_directory_symlink("phone", folder.file("link"));
  EXPECT_EQ(DeviceRoot(folder.file("link")).folder(),
            std::filesystem::canonical(folder.file("phone")).native());
}

TEST(DeviceRootTest, theRootOfTheDiskChangesNothing) {
  const DeviceRoot root("/");
  EXPECT_EQ(root.folder(), "/");
  EXPECT_EQ(root.onDisk("/var/mobile/a"), "/var/mobile/a");
  EXPECT_EQ(root.onDevice("/var/mobile/a"), "/var/mobile/a");
}

TEST(DeviceRootTest, theUsersLiesInTheDataFolder) {
  const ScopedVariable home("HOME", "/home/me");
  {
    const ScopedVariable data("XDG_DATA_HOME", "/data");
    EXPECT_EQ(DeviceRoot::ofUser().folder(), "/data/photohost");
  }
  for (const auto& unusable : {std::optional<std::string>(), std::optional<std::string>(""),
                               std::optional<std::string>("relative")}) {
    const ScopedVariable data("XDG_DATA_HOME", unusable);
    EXPECT_EQ(DeviceRoot::ofUser().folder(), "/home/me/.local/share/photohost");
  }
}

}  // namespace
}  // namespace foundation
