// SPDX-License-Identifier: MIT
#include "bridge/foundation.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace bridge {
namespace {

class FoundationTest : public testing::Test {
 protected:
  static NSString text(const char* utf8) { return NSString::make(utf8); }

  const AutoreleasePool pool;
};

TEST_F(FoundationTest, TextsKeepTheirCharacters) {
  const std::string texts[] = {"", "plain", "Grüße, 東京 🙂", std::string("a\0b", 3)};
  for (const std::string& expected : texts) EXPECT_EQ(NSString::make(expected).utf8(), expected);
  EXPECT_EQ(text("東京🙂").length(), 4U);
  EXPECT_EQ(NSString().utf8(), "");
  EXPECT_FALSE(NSString::make("\xff\xfe"));
}

TEST_F(FoundationTest, NumbersConvert) {
  EXPECT_EQ(NSNumber::withLongLong(3'000'000'000).intValue(), -1'294'967'296);
  EXPECT_EQ(NSNumber::withInt(-5).longLongValue(), -5);
  EXPECT_EQ(NSNumber::withDouble(2.75).intValue(), 2);
  EXPECT_EQ(NSNumber::withDouble(2.75).floatValue(), 2.75F);
  EXPECT_TRUE(NSNumber::withBool(true).boolValue());
  EXPECT_EQ(NSNumber().doubleValue(), 0.0);
  EXPECT_EQ(NSNumber::withInt(72).stringValue().utf8(), "72");
}

TEST_F(FoundationTest, ArraysHoldWhatTheyWereMadeOf) {
  const NSString first = text("b");
  const NSArray array = NSArray::of(first, text("a"));
  ASSERT_EQ(array.count(), 2U);
  EXPECT_TRUE(array.containsIdentical(first));
  EXPECT_FALSE(array.containsIdentical(text("another")));
  EXPECT_FALSE(NSArray().containsIdentical(first));
  const NSArray sorted = array.sortedUsing(selector<"compare:">());
  EXPECT_EQ(as<NSString>(sorted.at(0)).utf8(), "a");
  const auto copy = mutableCopy(array);
  copy->add(first);
  EXPECT_EQ(copy->count(), 3U);
  EXPECT_EQ(array.count(), 2U);
  EXPECT_EQ(NSArray::of().count(), 0U);
}

TEST_F(FoundationTest, DictionariesAndCachesFindByKey) {
  const auto dictionary = makeNew<NSMutableDictionary>();
  dictionary->set(text("value"), text("key"));
  EXPECT_EQ(as<NSString>(dictionary->at(text("key"))).utf8(), "value");
  EXPECT_FALSE(dictionary->at(text("other")));
  EXPECT_EQ(dictionary->allKeys().count(), 1U);
  dictionary->remove(text("key"));
  EXPECT_EQ(dictionary->count(), 0U);
  const auto cache = makeNew<NSCache>();
  cache->set(NSNumber::withInt(7), text("key"));
  EXPECT_EQ(as<NSNumber>(cache->at(text("key"))).intValue(), 7);
  EXPECT_FALSE(cache->at(text("other")));
}

TEST_F(FoundationTest, FilesTellTheirSizeAndDate) {
  const std::string path = testing::TempDir() + "foundation_test_file";
  std::FILE* file = std::fopen(path.c_str(), "w");
  ASSERT_TRUE(file);
  std::fputs("twelve bytes", file);
  std::fclose(file);
  const NSFileManager manager = NSFileManager::defaultManager();
  EXPECT_TRUE(manager.fileExists(NSString::make(path)));
  const FileAttributes attributes = manager.attributesOfItem(NSString::make(path));
  EXPECT_EQ(attributes.fileSize(), 12U);
  EXPECT_GT(attributes.fileModificationDate().timeIntervalSince1970(), 1e9);
  std::remove(path.c_str());
  EXPECT_FALSE(manager.fileExists(NSString::make(path)));
  EXPECT_FALSE(manager.attributesOfItem(NSString::make(path)));
}

TEST_F(FoundationTest, LinksKeepTheirEscapesAndPathsHaveNone) {
  const NSURL url = NSURL::fileURLWithPath(text("/photos/a b.JPG"));
  EXPECT_EQ(url.absoluteString().utf8(), "file:///photos/a%20b.JPG");
  EXPECT_EQ(url.path().utf8(), "/photos/a b.JPG");
  EXPECT_EQ(NSURL::withString(text("http://example.com/?q=1")).absoluteString().utf8(),
            "http://example.com/?q=1");
}

TEST_F(FoundationTest, PatternsReplaceEveryMatchByTheTemplate) {
  const auto pattern = NSRegularExpression::withPattern(text("(full|medium)?(.JPG)$"),
                                                        NSRegularExpression::caseInsensitive);
  const auto rewritten = [&](const char* name) {
    return pattern.replaceMatches(text(name), text("large$2")).utf8();
  };
  EXPECT_EQ(rewritten("IMG_0001medium.jpg"), "IMG_0001large.jpg");
  EXPECT_EQ(rewritten("IMG_0001full.JPG"), "IMG_0001large.JPG");
  EXPECT_EQ(rewritten("x.jpg"), "xlarge.jpg");
  EXPECT_EQ(rewritten("IMG_0001.PNG"), "IMG_0001.PNG");
  EXPECT_FALSE(NSRegularExpression::withPattern(text("("), NSRegularExpression::caseInsensitive));
}

TEST_F(FoundationTest, AttributedTextsTakeAttributesOverTheirWholeLength) {
  const auto attributed = NSMutableAttributedString::withString(text("two words"));
  attributed->addAttribute(text("NSFont"), text("a font"), {0, attributed->length()});
  NSRange range;
  const auto value = send<NSString, "attribute:atIndex:effectiveRange:">(attributed, text("NSFont"),
                                                                         NSUInteger{3}, &range);
  EXPECT_EQ(value.utf8(), "a font");
  EXPECT_EQ(range, (NSRange{0, 9}));
}

TEST_F(FoundationTest, SetsAnswerAnyOfTheirObjects) {
  const NSString element = text("only");
  const auto set = send<NSSet, "setWithObject:">(NSSet::classObject(), element);
  EXPECT_EQ(set.anyObject(), element);
  EXPECT_FALSE(makeNew<NSSet>()->anyObject());
}

}  // namespace
}  // namespace bridge
