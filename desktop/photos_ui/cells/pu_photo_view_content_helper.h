// SPDX-License-Identifier: MIT
//
// PUPhotoViewContentHelper: what a photo view shows of an item: its thumbnail as soon as it is
// there, a badge with what marks it, a word where it is of a special kind. The badge and the word
// are in the fields `__badgeView` and `_textBannerView`.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "bridge/uikit.h"
#include "desktop/library/library_item.h"
#include "desktop/photos_ui/cells/picture_ticket.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class PUPhotoViewContentHelperState
    : public Bound<PUPhotoViewContentHelperState, NSObject, PUPhotoViewContentHelper> {
 public:
  enum class State { empty, loading, shown, failed };

  using Bound::Bound;
  ~PUPhotoViewContentHelperState();
  static Class classObject();
  // For a view, which owns it; +1.
  static Owned<PUPhotoViewContentHelper> make(UIView contentView);

  // Shows an item, or nothing, in a room of the size in points; the picture covers all of it.
  void show(library::ItemPointer item, CGSize room);
  // The word of what is shown next, in place of what its name says; empty for that.
  void setWord(std::string_view word) { _word = word; }
  // The room has another size, at which the item is shown as well: what is on show stays until the
  // sharper picture is there.
  void fit(CGSize room);
  // Nobody sees it at present: what is not there yet is no longer wanted.
  void stopLoading();
  // The view is gone; from now on nothing is shown.
  void viewIsGone();
  State state() const { return _state; }
  const library::ItemPointer& item() const { return _item; }

 private:
  UIView contentView() const { return _contentView; }
  void layoutSubviewsOfContentView();
  void load();
  void showPicture(const pictures::SharedPicture& picture);
  void fail(const std::string& reason);
  void setState(State state);
  CGRect pictureFrame() const;
  void showBadge();
  void showBanner();
  std::string_view bannerText() const;
  void setExtra(const char* field, UIView view);

  UIView _contentView;  // borrowed
  Owned<UIImageView> _imageView;
  library::ItemPointer _item;
  std::string _word;
  CGSize _room;                      // points
  pictures::SharedPicture _picture;  // on show
  PictureTicket _ticket;
  State _state = State::empty;
  CGSize _arrangedSize;  // that badge and banner were placed in
};

}  // namespace desktop::photos_ui
