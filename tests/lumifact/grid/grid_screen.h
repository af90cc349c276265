// SPDX-License-Identifier: MIT
//
// The photo application's own grids on a small library, with the extension's hooks in them.
#pragma once

#include "lumifact/state/current_settings.h"
#include "lumifact/state/file_size_cache.h"
#include "tests/desktop/photos_ui/library_screen.h"
#include "tests/lumifact/assets/file_calls.h"

namespace lumifact {

// Puts the hooks in place, once, and makes what stays for the life of the process.
struct HookedHost {
  HookedHost();
};

class GridScreenTest : private HookedHost, public desktop::photos_ui::LibraryScreenTest {
 protected:
  GridScreenTest();
  ~GridScreenTest() override;

  // Photos "00.jpg" and so on, of two pixels by one, in an album that is then shown.
  void openAlbumOf(int count, const std::string& album = "Album");
  // The same of what is in the folder.
  void openAlbum(const std::string& album);
  // A photo in a file as long as that, mostly holes.
  void addPhoto(const std::string& name, double date, std::uintmax_t size) const;

  static PUPhotosGridViewController controller();
  static UICollectionView collection() { return controller().collectionView(); }
  // The cell on show of an item of the first section; nil out of sight.
  static PUPhotosGridCell cellOf(NSInteger item);
  static UIView barOf(NSInteger item);
  static std::string captionOf(NSInteger item);
  // Lays the cells on show out anew, as they are.
  static void layOutCells();
  // Asks for all of them anew; the host may have asked for them more than once before.
  enum class Sizes { known, unknown };
  static void askForCells(Sizes sizes = Sizes::known);
  static void pressItem(long item);

  static void setEditing(bool editing);
};

}  // namespace lumifact
