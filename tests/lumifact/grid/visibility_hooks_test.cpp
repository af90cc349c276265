// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "lumifact/grid/visibility.h"
#include "tests/lumifact/grid/grid_host_test.h"

namespace lumifact {
namespace {

using host::gridCalls;
using testing::ElementsAre;

class VisibilityTest : public GridHostTest {
 protected:
  static void appear(NSObject controller) { send<void, "viewWillAppear:">(controller, true); }
  static void leave(NSObject controller) { send<void, "viewWillDisappear:">(controller, false); }

  const Owned<NSObject> list = makeNew<NSObject>(objc_getClass("PUAlbumListViewController"));
  const Owned<NSObject> panorama =
      makeNew<NSObject>(objc_getClass("PUPhotosPanoramaViewController"));
};

TEST_F(VisibilityTest, NothingIsOnScreenAtFirst) {
  EXPECT_FALSE(isAlbumListVisible());
  EXPECT_FALSE(isPanoramaVisible());
}

TEST_F(VisibilityTest, TheListComesAndGoesAfterTheHostHasDoneItsPart) {
  appear(list);
  EXPECT_TRUE(isAlbumListVisible());
  EXPECT_FALSE(isPanoramaVisible());
  leave(list);
  EXPECT_FALSE(isAlbumListVisible());
  EXPECT_THAT(gridCalls(),
              ElementsAre("viewWillAppear: animated", "viewWillDisappear:, list on screen"));
}

TEST_F(VisibilityTest, APanoramaComesAndGoesAfterTheHostHasDoneItsPart) {
  appear(panorama);
  EXPECT_TRUE(isPanoramaVisible());
  EXPECT_FALSE(isAlbumListVisible());
  leave(panorama);
  EXPECT_FALSE(isPanoramaVisible());
  EXPECT_THAT(gridCalls(),
              ElementsAre("viewWillAppear: animated", "viewWillDisappear:, panorama on screen"));
}

}  // namespace
}  // namespace lumifact
