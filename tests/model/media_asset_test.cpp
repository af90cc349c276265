// SPDX-License-Identifier: MIT
#include "model/media_asset.h"

#include <gtest/gtest.h>

namespace model {
namespace {

TEST(MediaAsset, CodesHaveTheirFirstCharacterOnTop) {
  static_assert(fourCharCode("vide") == 0x76696465);
  static_assert(fourCharCode("aac ") == 0x61616320);
  EXPECT_EQ(fourCharCode("\xA9xyz"), 0xA978797A);
}

TEST(MediaAsset, TracksAreUprightAndOfUnknownFrameDurationByDefault) {
  const Track track;
  EXPECT_EQ(track.preferredTransform, (AffineTransform{1, 0, 0, 1, 0, 0}));
  EXPECT_FALSE(track.minFrameDuration);
}

TEST(MediaAsset, ComparesByContent) {
  MediaAsset one;
  one.tracks.emplace_back().commonMetadata = {{"make", "Apple"}};
  MediaAsset other = one;
  EXPECT_EQ(one, other);
  other.tracks[0].commonMetadata[0].value.reset();
  EXPECT_NE(one, other);
}

}  // namespace
}  // namespace model
