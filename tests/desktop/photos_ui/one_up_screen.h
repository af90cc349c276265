// SPDX-License-Identifier: MIT
//
// A single photo on the screen, with real pictures: the test program is its own decoder.
#pragma once

#include "desktop/photos_ui/one_up/pu_one_up_photo_view.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/pictures/picture_loader.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "tests/desktop/photos_ui/library_screen.h"

namespace desktop::photos_ui {

class OneUpTest : public LibraryScreenTest {
 protected:
  OneUpTest();
  // Views are gone before the loader.
  ~OneUpTest() override;

  static constexpr CGPoint screenMiddle{187.5, 333.5};

  // A grey picture "Album/NAME", dated so many days after 1970.
  void addPicture(const std::string& name, int day, int width = 40, int height = 30) const;
  // "0.bmp" and so on.
  void addPictures(int count) const;
  // Shows an item of the album, with its picture.
  void show(long item);
  void peek(long item);
  // Waits for pictures.
  void deliverPictures();
  void removeFile(const std::string& name);

  static PUOneUpViewControllerState& oneUp();
  static bool isOneUpOnShow();
  static uikit::UINavigationControllerState& navigation();
  static PUTilingView& tilingView();
  // The photos that exist, current or not.
  static std::vector<std::string> pages();
  static PUOneUpPhotoView& currentPhoto();
  // Its picture on the screen.
  static CGRect pictureFrame();
  static std::string nameOf(const library::ItemPointer& item);
  static std::string currentName() { return nameOf(oneUp().currentItem()); }
  static bool act(OneUpAction action);

  static void drag(CGPoint from, CGPoint to);
  static void doubleTap(CGPoint point);

 private:
  pictures::PictureLoader _loader;
};

}  // namespace desktop::photos_ui
