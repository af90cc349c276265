// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "bridge/convert.h"
#include "bridge/foundation.h"
#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/platform.h"
#include "foundation/property_lists/property_list.h"
#include "tests/desktop/faces/foundation/answers.h"

namespace desktop::faces {
namespace {

// The process's Foundation, corrected, over a device root of its own.
class CorrectedFoundation {
 public:
  CorrectedFoundation() {
    setenv("TZ", "Europe/Berlin", 1);
    std::string pattern = testing::TempDir() + "rootXXXXXX";
    root = mkdtemp(pattern.data());
    writeSampleFiles(root);
    correctFoundation({foundation::DeviceRoot(root), "com.example.host"});
  }
  ~CorrectedFoundation() { std::filesystem::remove_all(root); }

  std::string root;
};

class CorrectedFoundationTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { foundation = new CorrectedFoundation; }
  static void TearDownTestSuite() { delete foundation; }

  static std::string onDisk(const char* name) { return foundation->root + "/var/mobile/" + name; }
  static NSString onPhone(const char* name) {
    return NSString::make(std::string("/var/mobile/") + name);
  }
  static Owned<NSMutableDictionary> read(const char* name) {
    return NSMutableDictionary::withContentsOfFile(onPhone(name));
  }
  static void write(const char* name, const std::string& content) {
    std::ofstream(onDisk(name), std::ios::binary) << content;
  }

  static inline CorrectedFoundation* foundation = nullptr;
  const AutoreleasePool pool;
};

TEST_F(CorrectedFoundationTest, AnswersAsThePhoneDoes) {
  for (const Answer& answer : answers())
    EXPECT_EQ(answer.ask(), answer.expected) << answer.question;
}

TEST_F(CorrectedFoundationTest, LeavesOtherStylesAndBundlesToFoundation) {
  const auto date = NSDate::withTimeIntervalSince1970(0);
  EXPECT_TRUE(NSDateFormatter::localizedString(date, NSDateFormatter::shortStyle,
                                               NSDateFormatter::noStyle));
  constexpr NSInteger memoryStyle = 1;
  EXPECT_TRUE((send<NSString, "stringFromByteCount:countStyle:">(
      NSByteCountFormatter::classObject(), 2048LL, memoryStyle)));
  const auto other =
      send<NSBundle, "bundleForClass:">(NSBundle::classObject(), NSString::classObject());
  EXPECT_NE(other.bundleIdentifier().utf8(), "com.example.host");
}

TEST_F(CorrectedFoundationTest, LinksThatAreNoneStayNone) {
  for (const char* text : {"not a link", "a b://?c", "a://?b\"c"})
    EXPECT_FALSE(NSURL::withString(NSString::make(text))) << text;
  EXPECT_FALSE(NSURL::withString(NSString()));
  const auto web = NSURL::withString(NSString::make("http://example.com/?q=1&ll=1,2"));
  EXPECT_EQ(web.absoluteString().utf8(), "http://example.com/?q=1&ll=1,2");
}

TEST_F(CorrectedFoundationTest, LinksOfOtherSchemesTellTheirParts) {
  const auto link = NSURL::withString(NSString::make("scheme://?a=b#c"));
  EXPECT_EQ((send<NSString, "scheme">(link).utf8()), "scheme");
  EXPECT_EQ((send<NSString, "query">(link).utf8()), "a=b");
  EXPECT_EQ((send<NSString, "resourceSpecifier">(link).utf8()), "//?a=b#c");
  EXPECT_EQ(link.path().utf8(), "");
  EXPECT_FALSE((send<bool, "isFileURL">(link)));
  EXPECT_EQ(link.description().utf8(), "scheme://?a=b#c");
  const auto same = NSURL::withString(NSString::make("scheme://?a=b#c"));
  EXPECT_TRUE(link.isEqual(same));
  EXPECT_FALSE(link.isEqual(NSURL()));
  EXPECT_FALSE(link.isEqual(NSString::make("scheme://?a=b#c")));
}

TEST_F(CorrectedFoundationTest, PropertyListsReadAlikeInBothFormats) {
  const model::Dictionary content = {{"a", 1}, {"b", true}, {"c", 0.5}, {"d", "text"}};
  for (const auto format :
       {foundation::PropertyListFormat::binary, foundation::PropertyListFormat::xml}) {
    write("both.plist", *foundation::serializePropertyList(content, format));
    const auto list = read("both.plist");
    EXPECT_EQ(toValue(list), model::Value(content));
    list->set(NSString::make("changed"), NSString::make("d"));
    EXPECT_EQ(as<NSString>(list->at(NSString::make("d"))).utf8(), "changed");
  }
}

TEST_F(CorrectedFoundationTest, WhatIsNoPropertyListIsNilInSilence) {
  write("empty.plist", "");
  write("text.plist", "this is no property list {");
  write("truncated.plist", "<?xml version=\"1.0\"?><plist><dict><key>a</key>");
  write("array.plist", *foundation::serializePropertyList(model::Array{1},
                                                          foundation::PropertyListFormat::binary));
  std::string nested = "<plist>";
  for (int depth = 0; depth < 100'000; ++depth) nested += "<array>";
  write("nested.plist", nested);
  std::filesystem::create_directories(onDisk("folder.plist"));
  std::filesystem::create_symlink("loop.plist", onDisk("loop.plist"));
  ASSERT_EQ(mkfifo(onDisk("pipe.plist").c_str(), 0600), 0);
  write("huge.plist", "");
  std::filesystem::resize_file(onDisk("huge.plist"), std::uintmax_t{1} << 30);
  testing::internal::CaptureStderr();
  for (const char* name :
       {"missing.plist", "empty.plist", "text.plist", "truncated.plist", "array.plist",
        "nested.plist", "folder.plist", "loop.plist", "pipe.plist", "huge.plist"})
    EXPECT_FALSE(read(name)) << name;
  EXPECT_FALSE(NSMutableDictionary::withContentsOfFile(NSString()));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(CorrectedFoundationTest, ArraysAreReadFromFilesToo) {
  write("list.plist", *foundation::serializePropertyList(model::Array{1, "two"},
                                                         foundation::PropertyListFormat::xml));
  const auto array = Owned<NSArray>::adopt(send<NSArray, "initWithContentsOfFile:">(
      send<id, "alloc">(NSArray::classObject()), onPhone("list.plist")));
  EXPECT_EQ(toValue(array), model::Value(model::Array{1, "two"}));
}

TEST_F(CorrectedFoundationTest, FilesOutsideThePhonesFoldersAreWhereTheyAre) {
  const auto manager = NSFileManager::defaultManager();
  EXPECT_TRUE(manager.fileExists(NSString::make(foundation->root)));
  EXPECT_FALSE(manager.fileExists(NSString::make("/var/mobiles")));
  EXPECT_TRUE(manager.fileExists(NSString::make("/var/mobile")));
  EXPECT_FALSE(manager.fileExists(NSString()));
}

TEST_F(CorrectedFoundationTest, AttributesAreOfALinkItselfAndOfSparseFilesWhole) {
  const auto manager = NSFileManager::defaultManager();
  write("sparse.mov", "");
  std::filesystem::resize_file(onDisk("sparse.mov"), 3'000'000'000);
  std::filesystem::create_symlink("sparse.mov", onDisk("link.mov"));
  EXPECT_EQ(manager.attributesOfItem(onPhone("sparse.mov")).fileSize(), 3'000'000'000ULL);
  EXPECT_EQ(manager.attributesOfItem(onPhone("link.mov")).fileSize(), 10ULL);
  EXPECT_FALSE(manager.attributesOfItem(onPhone("missing.mov")));
  EXPECT_EQ(manager.attributesOfItem(onPhone("missing.mov")).fileSize(), 0ULL);
}

}  // namespace
}  // namespace desktop::faces
