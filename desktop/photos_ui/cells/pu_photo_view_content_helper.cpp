// SPDX-License-Identifier: MIT
//
// Showing an item takes the thumbnail where it is at hand, and otherwise asks for it and shows
// nothing meanwhile; another item, or leaving the screen, takes the question back. Mark and word
// are placed only when the view got another size, since extensions move them.
#include "desktop/photos_ui/cells/pu_photo_view_content_helper.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/cells/item_badge.h"
#include "desktop/photos_ui/cells/text_banner.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/views/ui_image_view.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {
namespace {

constexpr const char* badgeField = "__badgeView";
constexpr const char* bannerField = "_textBannerView";
constexpr CGFloat bannerMargin = 4;      // points
constexpr CGFloat leastBannerRoom = 60;  // points; in less it would hide the photo
constexpr CGFloat tolerance = 1.5;       // points by which a picture's size may be off

int pixels(CGFloat points) {
  constexpr double most = 8192;
  return static_cast<int>(std::ceil(std::clamp(points * uikit::screen().scale, 1.0, most)));
}

pictures::Request requestFor(CGSize room) {
  return {.maxWidth = pixels(room.width),
          .maxHeight = pixels(room.height),
          .fit = pictures::Request::Fit::fill};
}

CGFloat toWholePixel(CGFloat points) {
  return std::round(points * uikit::screen().scale) / uikit::screen().scale;
}

bool isAbout(CGSize size, CGSize other) {
  return std::abs(size.width - other.width) < tolerance &&
         std::abs(size.height - other.height) < tolerance;
}

}  // namespace

Class PUPhotoViewContentHelperState::classObject() {
  static const Class made =
      ClassBuilder<PUPhotoViewContentHelperState>("PUPhotoViewContentHelper")
          .field(bannerField, "@")
          .field(badgeField, "@")
          .method<"contentView", &PUPhotoViewContentHelperState::contentView>()
          .method<"layoutSubviewsOfContentView",
                  &PUPhotoViewContentHelperState::layoutSubviewsOfContentView>()
          .build();
  return made;
}

PUPhotoViewContentHelperState::~PUPhotoViewContentHelperState() {
  setObjectField(self(), bannerField, {});
  setObjectField(self(), badgeField, {});
}

Owned<PUPhotoViewContentHelper> PUPhotoViewContentHelperState::make(UIView contentView) {
  auto made = makeNew<PUPhotoViewContentHelper>(classObject());
  PUPhotoViewContentHelperState& helper = of(made.get());
  helper._contentView = contentView;
  helper._imageView = bridge::makeView<UIImageView>({});
  contentView.addSubview(helper._imageView);
  return made;
}

// Badge and word may be others for the same item.
void PUPhotoViewContentHelperState::show(library::ItemPointer item, CGSize room) {
  const bool isOther = item != _item;
  const bool isUnderWay = _state == State::shown || _state == State::failed || _ticket.isWaiting();
  const bool isLoaded = !isOther && room == _room && isUnderWay;
  if (isOther) showPicture(nullptr);
  _item = std::move(item);
  _room = room;
  showBadge();
  showBanner();
  if (isLoaded) return;
  _ticket.cancel();
  load();
}

void PUPhotoViewContentHelperState::fit(CGSize room) {
  if (!isAbout(room, _room)) show(_item, room);
}

void PUPhotoViewContentHelperState::load() {
  if (!_item || !host().pictures) {
    showPicture(nullptr);
    return setState(State::empty);
  }
  const pictures::Request request = requestFor(_room);
  if (const auto known = host().pictures->find(_item->path, request)) {
    showPicture(known);
    return setState(State::shown);
  }
  if (!_picture) setState(State::loading);
  _ticket.request(_item->path, request, pictures::Priority::visible,
                  [this](const pictures::Outcome& outcome) {
                    if (!outcome.picture) return fail(outcome.reason);
                    showPicture(outcome.picture);
                    setState(State::shown);
                  });
}

void PUPhotoViewContentHelperState::fail(const std::string& reason) {
  setState(State::failed);
  if (host().library) host().library->noteFailure(*_item, reason);
}

void PUPhotoViewContentHelperState::setState(State state) {
  if (state == _state) return;
  _state = state;
  if (_contentView) uikit::UIViewState::of(_contentView).setNeedsDisplay();
}

void PUPhotoViewContentHelperState::stopLoading() {
  _ticket.cancel();
}

void PUPhotoViewContentHelperState::viewIsGone() {
  _ticket.cancel();
  _contentView = {};
}

void PUPhotoViewContentHelperState::showPicture(const pictures::SharedPicture& picture) {
  if (picture == _picture) return;
  _picture = picture;
  const CGFloat scale = uikit::screen().scale;
  _imageView->setImage(picture ? uikit::UIImageState::make(picture, scale) : UIImage());
  _imageView->setFrame(pictureFrame());
}

// Covers the view, its middle in the middle. A picture that is as large as was asked for stands on
// whole pixels unscaled: it is painted ten times as fast.
CGRect PUPhotoViewContentHelperState::pictureFrame() const {
  const CGRect room = _contentView.bounds();
  if (!_picture || uikit::isEmpty(room)) return room;
  const CGFloat scale = uikit::screen().scale;
  const CGSize natural{_picture->width / scale, _picture->height / scale};
  CGRect frame = uikit::placed(natural, room, uikit::ContentMode::aspectFill);
  if (isAbout(frame.size, natural)) {
    frame.origin.x = toWholePixel(frame.origin.x + (frame.size.width - natural.width) / 2);
    frame.origin.y = toWholePixel(frame.origin.y + (frame.size.height - natural.height) / 2);
    frame.size = natural;
  }
  return frame;
}

void PUPhotoViewContentHelperState::showBadge() {
  const ItemMarks marks = host().library ? marksOf(*host().library, _item) : ItemMarks();
  const UIView badge(objectField(self(), badgeField).get());
  if (!marks.areAny()) {
    if (badge) setExtra(badgeField, {});
    return;
  }
  if (!badge) setExtra(badgeField, ItemBadge::make());
  ItemBadge::of(UIView(objectField(self(), badgeField).get())).show(marks);
}

std::string_view PUPhotoViewContentHelperState::bannerText() const {
  if (!_item) return {};
  return _word.empty() ? bannerTextFor(_item->name()) : std::string_view(_word);
}

void PUPhotoViewContentHelperState::showBanner() {
  const std::string_view text = bannerText();
  const UIView banner(objectField(self(), bannerField).get());
  if (text.empty()) {
    if (banner) setExtra(bannerField, {});
    return;
  }
  if (banner && TextBannerView::of(banner).text().utf8() == text) return;
  const auto made = makeNew<UIView>(TextBannerView::classObject());
  TextBannerView::of(made.get()).setText(NSString::make(text));
  setExtra(bannerField, made);
}

// The view in a field, in place of the one before.
void PUPhotoViewContentHelperState::setExtra(const char* field, UIView view) {
  UIView(objectField(self(), field).get()).removeFromSuperview();
  setObjectField(self(), field, view);
  _contentView.addSubview(view);
  _arrangedSize = {};
  if (_contentView) uikit::UIViewState::of(_contentView).setNeedsLayout();
}

// The mark and the word stay where somebody else moved them until they belong elsewhere.
void PUPhotoViewContentHelperState::layoutSubviewsOfContentView() {
  const CGSize room = _contentView.bounds().size;
  _imageView->setFrame(pictureFrame());
  if (room.width == _arrangedSize.width && room.height == _arrangedSize.height) return;
  _arrangedSize = room;
  const UIView badge(objectField(self(), badgeField).get());
  badge.setFrame({{0, room.height - ItemBadge::height}, {room.width, ItemBadge::height}});
  const UIView banner(objectField(self(), bannerField).get());
  const CGSize size = banner.sizeThatFits(room);
  banner.setHidden(room.width < leastBannerRoom);
  const CGFloat below = badge ? ItemBadge::height : bannerMargin;
  banner.setFrame({{bannerMargin, room.height - size.height - below}, size});
}

}  // namespace desktop::photos_ui
