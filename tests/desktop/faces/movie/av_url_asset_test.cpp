// SPDX-License-Identifier: MIT
//
// Videos as an extension reads them, compared with what the plain reader says of the same bytes.
#include <gtest/gtest.h>

#include "bridge/bound.h"
#include "bridge/convert_media.h"
#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/faces/movie/avfoundation_runtime.h"
#include "desktop/platform.h"
#include "io/byte_source.h"
#include "media/movie/media_source.h"
#include "tests/support/movie_builder.h"
#include "tests/support/temporary_folder.h"

namespace desktop::faces {
namespace {

class AVURLAssetTest : public testing::Test {
 protected:
  AVURLAssetTest() {
    registerAVFoundation();
    correctFoundation({.root = foundation::DeviceRoot(_folder.path()), .bundleIdentifier = {}});
  }

  static AVURLAsset open(const std::string& link) {
    return AVURLAsset::withURL(NSURL::withString(NSString::make(link)));
  }

  support::TemporaryFolder _folder;
  const AutoreleasePool _pool;
};

TEST_F(AVURLAssetTest, tellsAllThatThePlainReaderTells) {
  _folder.write("var/mobile/a.mov", media::movie::phoneMovie());
  io::MemorySource source(media::movie::phoneMovie());
  const auto read = media::movie::copyAsset(source);
  ASSERT_TRUE(read && *read);
  model::MediaAsset expected = (*read)->asset;
  ASSERT_GE(expected.tracks.size(), 2U);
  const AVURLAsset asset = open("file:///var/mobile/a.mov");
  EXPECT_EQ(CMTimeGetSeconds(send<CMTime, "duration">(asset)), expected.duration);
  // These are not asked for through tracks and metadata.
  expected.duration = 0;
  expected.creationDate.reset();
  EXPECT_EQ(toMediaAsset(asset), expected);
}

TEST_F(AVURLAssetTest, whatIsNoVideoHasNoTracks) {
  _folder.write("text.mov", std::string_view("a text"));
  for (const std::string& link :
       {"file://" + _folder.path() + "/text.mov", "file://" + _folder.path() + "/none.mov",
        std::string("http://example.com/a.mov")}) {
    const AVURLAsset asset = open(link);
    ASSERT_TRUE(asset) << link;
    EXPECT_EQ(asset.tracks().count(), 0U) << link;
    EXPECT_EQ(asset.commonMetadata().count(), 0U) << link;
  }
  EXPECT_FALSE(AVURLAsset::withURL(NSURL()));
}

TEST_F(AVURLAssetTest, allItsObjectsGoWithIt) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool pool;
    _folder.write("a.mov", media::movie::phoneMovie());
    EXPECT_GT(open("file://" + _folder.path() + "/a.mov").tracks().count(), 0U);
    EXPECT_GT(liveBoundObjects(), before);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::faces
