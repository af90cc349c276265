// SPDX-License-Identifier: MIT
//
// The stand-in grids for a test, with the default settings and nothing left of the test before.
#pragma once

#include "lumifact/state/current_settings.h"
#include "lumifact/state/file_size_cache.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/lumifact/assets/fake_asset.h"
#include "tests/lumifact/assets/file_calls.h"
#include "tests/lumifact/grid/grid_host.h"
#include "tests/lumifact/views/foundation_test.h"

namespace lumifact {

// A photo that knows everything but where it was taken.
inline const host::AssetFacts samplePhoto = {.mainFile = "file:///photos/IMG_0001.JPG",
                                             .pixelWidth = 4032,
                                             .pixelHeight = 3024,
                                             .uuid = "A",
                                             .uniformTypeIdentifier = "public.jpeg",
                                             .exifOrientation = 6,
                                             .creationDate = 1538309000};

class GridHostTest : public desktop::uikit::ApplicationTest {
 protected:
  GridHostTest() {
    useThePhonesFoundation();
    host::installGridHost();
    host::fileCalls() = {};
    settings = {};
    infoLineHeight = 16;
    createFileSizeCache();
    host::gridCalls().clear();
  }
  ~GridHostTest() override { host::fileCalls() = {}; }

  static host::HostCell& stateOf(PUPhotosGridCell cell) { return host::HostCell::of(cell); }
  static host::HostGrid& stateOf(PUPhotosGridViewController grid) {
    return host::HostGrid::of(grid);
  }
  // Gives a grid one asset for all of its items.
  static void giveAsset(PUPhotosGridViewController grid, const host::AssetFacts& facts) {
    stateOf(grid).asset = Owned<Object>::retain(host::makeAsset(facts));
  }
};

}  // namespace lumifact
