// SPDX-License-Identifier: MIT
//
// PUOneUpPhotoView: one photo, or a video's picture, as large as the page, which can be looked at
// closer. The picture comes in steps: what is quickly at hand first.
#pragma once

#include "bridge/bound.h"
#include "desktop/library/library_item.h"
#include "desktop/photos_ui/cells/picture_ticket.h"
#include "desktop/platform.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::photos_ui {

class PUOneUpPhotoView : public Bound<PUOneUpPhotoView, uikit::UIScrollViewState> {
 public:
  using Bound::Bound;
  static Class classObject();

  static Owned<UIView> make(library::ItemPointer item);

  const library::ItemPointer& item() const { return _item; }
  // How many times as large as the page it is; 1 shows all of it.
  CGFloat zoom() const { return _zoom; }
  // Looks closer, or from further away, at a point of the page; within what makes sense.
  void zoomTo(CGFloat zoom, CGPoint at, bool animated);
  // The zoom at which a pixel of the photo is one of the screen.
  CGFloat actualSizeZoom() const;
  CGFloat greatestZoom() const;
  // REQUIRES: it is a video. Hands it to whatever the user plays videos with.
  void play() const;

 private:
  void layoutSubviews();
  bool shouldBegin(UIGestureRecognizer recognizer);
  void handleDoubleTap(UIGestureRecognizer recognizer);
  void playTouched(NSObject) const { play(); }

  void prepare(library::ItemPointer item);
  void addPlayButton();
  // Asks for a picture of the photo as large as the box, in pixels.
  void load(CGSize pixels, pictures::Priority priority);
  void loadForRoom();
  void loadForZoom();
  void show(const pictures::Outcome& outcome);
  void tellShortfall();
  void showFailure(const std::string& reason);
  void showWords(const std::string& words);
  void arrange();
  CGSize fittedSize() const;
  CGSize room() const;
  CGSize naturalSize() const;

  library::ItemPointer _item;
  Owned<UIImageView> _imageView;
  Owned<UILabel> _failure;
  Owned<UIButton> _playButton;
  PictureTicket _ticket;
  CGSize _pictureSize;  // pixels of what is shown
  CGSize _asked;        // pixels of the box that was asked for last
  CGSize _laidOut;      // the room at the last layout
  CGFloat _zoom = 1;
};

}  // namespace desktop::photos_ui
