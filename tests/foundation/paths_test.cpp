// SPDX-License-Identifier: MIT
#include "foundation/paths.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace foundation {
namespace {

TEST(Paths, MakesPathsAbsoluteWithoutResolvingLinksOrParents) {
  const std::string here = std::filesystem::current_path().native();
  const std::pair<std::string_view, std::string> cases[] = {
      {"/a/b.jpg", "/a/b.jpg"},
      {"/a/./b.jpg", "/a/b.jpg"},
      {"//a///b.jpg", "/a/b.jpg"},
      {"/a/../b.jpg", "/a/../b.jpg"},
      {"/", "/"},
      {"b.jpg", here + "/b.jpg"},
      {"./b.jpg", here + "/b.jpg"},
      {"../b.jpg", here + "/../b.jpg"},
      {"a/.hidden/..b", here + "/a/.hidden/..b"},
      {"-x.jpg", here + "/-x.jpg"},
  };
  for (const auto& [path, absolute] : cases) EXPECT_EQ(absolutePath(path), absolute) << path;
}

TEST(Paths, FollowsLinksAndParentsToWhereTheFileIs) {
  namespace fs = std::filesystem;
  const support::TemporaryFolder made;
  const std::string folder = fs::canonical(made.path());
  made.write("a/b.jpg", "x");
  fs::create_directory_symlink("a", made.file("c"));
  fs::create_symlink("c/b.jpg", made.file("d.jpg"));
  fs::create_symlink("nothing", made.file("e.jpg"));
  EXPECT_EQ(resolvedPath(folder + "/d.jpg"), folder + "/a/b.jpg");
  EXPECT_EQ(resolvedPath(folder + "/c/../c/b.jpg"), folder + "/a/b.jpg");
  for (const std::string& path : {folder + "/a/b.jpg", folder + "/e.jpg", folder + "/none/../x"})
    EXPECT_EQ(resolvedPath(path), path);
}

TEST(Paths, EscapesFileUrlsAsThePlatformDoes) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG",
       "file:///var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG"},
      {"/a b.jpg", "file:///a%20b.jpg"},
      {"/100%#?;.jpg", "file:///100%25%23%3F%3B.jpg"},
      {"/!$&'()*+,-.:=@_~", "file:///!$&'()*+,-.:=@_~"},
      {"/\"<>[\\]^`{|}", "file:///%22%3C%3E%5B%5C%5D%5E%60%7B%7C%7D"},
      {"/Z\u00fcrich", "file:///Z%C3%BCrich"},
      {"/a\n\x1b\x80", "file:///a%0A%1B%80"},
  };
  for (const auto& [path, url] : cases) EXPECT_EQ(fileUrlText(path), url) << path;
}

}  // namespace
}  // namespace foundation
