// SPDX-License-Identifier: MIT
//
// PUPhotoView: the thumbnail of an item, wherever one is shown.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/cells/pu_photo_view_content_helper.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
class Canvas;
}

namespace desktop::photos_ui {

class PUPhotoViewState : public Bound<PUPhotoViewState, uikit::UIViewState, PUPhotoView> {
 public:
  using Bound::Bound;
  ~PUPhotoViewState();
  static Class classObject();

  PUPhotoViewContentHelper contentHelper() const { return _contentHelper; }
  PUPhotoViewContentHelperState& content() const {
    return PUPhotoViewContentHelperState::of(_contentHelper.get());
  }

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void drawContent(uikit::Canvas* canvas) const;

  Owned<PUPhotoViewContentHelper> _contentHelper;
};

}  // namespace desktop::photos_ui
