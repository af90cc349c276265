// SPDX-License-Identifier: MIT
#include "desktop/faces/photos/pu_asset_reference.h"

#include <gtest/gtest.h>

#include "desktop/faces/photos/cl_location.h"

namespace desktop::faces {
namespace {

TEST(PUAssetReferenceTest, keepsWhatItRefersTo) {
  const AutoreleasePool pool;
  Owned<PUAssetReference> reference;
  {
    const AutoreleasePool inner;
    const auto asset = makeNew<NSMutableArray>();
    reference = Owned<PUAssetReference>::retain(PUAssetReferenceState::make(asset, NSIndexPath()));
  }
  ASSERT_TRUE(reference->asset());
  EXPECT_TRUE(as<NSArray>(reference->asset()));
  EXPECT_FALSE((send<NSIndexPath, "indexPath">(reference)));
}

TEST(PUAssetReferenceTest, mayReferToNothing) {
  const AutoreleasePool pool;
  EXPECT_FALSE(PUAssetReferenceState::make({}, {}).asset());
}

TEST(CLLocationTest, isMadeFromDegrees) {
  const AutoreleasePool pool;
  const auto made = Owned<CLLocation>::adopt(send<CLLocation, "initWithLatitude:longitude:">(
      send<id, "alloc">(CLLocationState::classObject()), 1.5, -2.5));
  EXPECT_EQ(made->coordinate().latitude, 1.5);
  EXPECT_EQ(made->coordinate().longitude, -2.5);
}

}  // namespace
}  // namespace desktop::faces
