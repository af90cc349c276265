// SPDX-License-Identifier: MIT
//
// PUPhotoView: the thumbnail of an item, wherever one is shown.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/cells/pu_photo_view_content_helper.h"

namespace desktop::uikit {
class Canvas;
}

namespace desktop::photos_ui {

class PUPhotoView : public bridge::Bound<PUPhotoView, bridge::UIView> {
 public:
  using Bound::Bound;
  ~PUPhotoView();
  static Class classObject();

  bridge::PUPhotoViewContentHelper contentHelper() const { return _contentHelper; }
  PUPhotoViewContentHelper& content() const {
    return PUPhotoViewContentHelper::of(_contentHelper.get());
  }

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void drawContent(uikit::Canvas* canvas) const;

  bridge::Owned<bridge::PUPhotoViewContentHelper> _contentHelper;
};

}  // namespace desktop::photos_ui
