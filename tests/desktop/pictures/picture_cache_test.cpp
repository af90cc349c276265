// SPDX-License-Identifier: MIT
#include "desktop/pictures/picture_cache.h"

#include <gtest/gtest.h>

#include "tests/desktop/pictures/test_files.h"

namespace desktop::pictures {

namespace {

SharedPicture pictureOfBytes(std::size_t count) {
  return std::make_shared<const Picture>(
      Picture{1, static_cast<int>(count / 4), std::vector<std::uint32_t>(count / 4)});
}

PictureKey keyOf(const std::string& path) {
  return {.path = path, .request = {10, 10, Request::Fit::fit}};
}

TEST(PictureCache, FindsWhatWasPut) {
  PictureCache cache(1 << 20);
  const auto picture = pictureOfBytes(4000);
  cache.put(keyOf("a"), picture);
  EXPECT_EQ(cache.find(keyOf("a")), picture);
  EXPECT_EQ(cache.find(keyOf("b")), nullptr);
}

TEST(PictureCache, TellsTimesSizesAndRequestsApart) {
  PictureCache cache(1 << 20);
  const PictureKey key = keyOf("a");
  cache.put(key, pictureOfBytes(4));
  PictureKey later = key;
  later.modificationTime = 1;
  PictureKey longer = key;
  longer.size = 1;
  PictureKey other = key;
  other.request.fit = Request::Fit::fill;
  for (const PictureKey& each : {later, longer, other}) EXPECT_EQ(cache.find(each), nullptr);
}

TEST(PictureCache, DropsTheLeastRecentlyUsed) {
  PictureCache cache(40'000);
  for (const char* name : {"a", "b", "c", "d"}) cache.put(keyOf(name), pictureOfBytes(9000));
  ASSERT_NE(cache.find(keyOf("a")), nullptr);  // used again
  cache.put(keyOf("e"), pictureOfBytes(9000));
  EXPECT_EQ(cache.find(keyOf("b")), nullptr);
  for (const char* name : {"a", "c", "d", "e"}) EXPECT_NE(cache.find(keyOf(name)), nullptr) << name;
}

TEST(PictureCache, StaysWithinItsCapacity) {
  PictureCache cache(100'000);
  for (int number = 0; number < 1000; ++number) {
    cache.put(keyOf(std::to_string(number)),
              pictureOfBytes(4u * static_cast<unsigned>(number % 50)));
    ASSERT_LE(cache.byteCount(), 100'000U);
  }
  EXPECT_GT(cache.entryCount(), 100U);
}

TEST(PictureCache, KeepsNothingThatWouldPushOutMostOfIt) {
  PictureCache cache(40'000);
  cache.put(keyOf("small"), pictureOfBytes(4000));
  cache.put(keyOf("large"), pictureOfBytes(12'000));
  EXPECT_EQ(cache.find(keyOf("large")), nullptr);
  EXPECT_NE(cache.find(keyOf("small")), nullptr);
}

TEST(PictureCache, ReplacesThePictureOfAKey) {
  PictureCache cache(40'000);
  cache.put(keyOf("a"), pictureOfBytes(400));
  const auto picture = pictureOfBytes(800);
  cache.put(keyOf("a"), picture);
  EXPECT_EQ(cache.find(keyOf("a")), picture);
  EXPECT_EQ(cache.entryCount(), 1U);
}

TEST(PictureKey, ChangesWithTheFile) {
  const TestFolder folder;
  const Request request{10, 10, Request::Fit::fit};
  const std::string path = folder.write("a.jpg", {1, 2, 3});
  const PictureKey before = PictureKey::ofFile(path, request);
  EXPECT_EQ(before, PictureKey::ofFile(path, request));
  EXPECT_EQ(before.size, 3);
  folder.write("a.jpg", {1, 2, 3, 4});
  EXPECT_NE(before, PictureKey::ofFile(path, request));
  EXPECT_EQ(PictureKey::ofFile(folder.path("none"), request).size, 0);
}

}  // namespace

}  // namespace desktop::pictures
