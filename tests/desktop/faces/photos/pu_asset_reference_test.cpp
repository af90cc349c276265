// SPDX-License-Identifier: MIT
#include "desktop/faces/photos/pu_asset_reference.h"

#include <gtest/gtest.h>

#include "desktop/faces/photos/cl_location.h"

namespace desktop::faces {
namespace {

TEST(PUAssetReferenceTest, keepsWhatItRefersTo) {
  const bridge::AutoreleasePool pool;
  bridge::Owned<bridge::PUAssetReference> reference;
  {
    const bridge::AutoreleasePool inner;
    const auto asset = bridge::makeNew<bridge::NSMutableArray>();
    reference = bridge::Owned<bridge::PUAssetReference>::retain(
        PUAssetReference::make(asset, bridge::NSIndexPath()));
  }
  ASSERT_TRUE(reference->asset());
  EXPECT_TRUE(bridge::as<bridge::NSArray>(reference->asset()));
  EXPECT_FALSE((bridge::send<bridge::NSIndexPath, "indexPath">(reference)));
}

TEST(PUAssetReferenceTest, mayReferToNothing) {
  const bridge::AutoreleasePool pool;
  EXPECT_FALSE(PUAssetReference::make({}, {}).asset());
}

TEST(CLLocationTest, isMadeFromDegrees) {
  const bridge::AutoreleasePool pool;
  const auto made = bridge::Owned<bridge::CLLocation>::adopt(
      bridge::send<bridge::CLLocation, "initWithLatitude:longitude:">(
          bridge::send<id, "alloc">(CLLocation::classObject()), 1.5, -2.5));
  EXPECT_EQ(made->coordinate().latitude, 1.5);
  EXPECT_EQ(made->coordinate().longitude, -2.5);
}

}  // namespace
}  // namespace desktop::faces
