// SPDX-License-Identifier: MIT
//
// All frames follow from the room, the picture's shape and the zoom: whatever changes one of them
// arranges all. A small picture is asked for first, one of the room's pixels once the shape is
// known, and a larger one for a closer look; what comes replaces what is shown, place and zoom
// stay.
#include "desktop/photos_ui/one_up/pu_one_up_photo_view.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/one_up/picture_image.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/path.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/animator.h"
#include "foundation/file_url.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat doubleTapZoom = 2.5;
constexpr CGFloat leastGreatestZoom = 4;
constexpr CGFloat quickSide = 256;       // pixels, of the picture that comes first
constexpr CGFloat greatestSide = 8'192;  // pixels, of the closest look
constexpr CGFloat playSide = 72;         // points
constexpr double zoomTime = 0.3;

bool isWithin(CGSize size, CGSize room) {
  return size.width <= room.width + 1 && size.height <= room.height + 1;
}

// Where a point lies in a rectangle, in shares of its size; and the other way round.
CGPoint shareOf(CGPoint point, CGRect rect) {
  return {(point.x - rect.origin.x) / rect.size.width,
          (point.y - rect.origin.y) / rect.size.height};
}
CGPoint pointAt(CGPoint share, CGRect rect) {
  return {rect.origin.x + share.x * rect.size.width, rect.origin.y + share.y * rect.size.height};
}

CGSize times(CGSize size, CGFloat factor) {
  return {size.width * factor, size.height * factor};
}

}  // namespace

Class PUOneUpPhotoView::classObject() {
  static const Class made =
      ClassBuilder<PUOneUpPhotoView>("PUOneUpPhotoView")
          .method<"layoutSubviews", &PUOneUpPhotoView::layoutSubviews>()
          .method<"gestureRecognizerShouldBegin:", &PUOneUpPhotoView::shouldBegin>()
          .method<"handleDoubleTap:", &PUOneUpPhotoView::handleDoubleTap>()
          .method<"playTouched:", &PUOneUpPhotoView::playTouched>()
          .build();
  return made;
}

Owned<UIView> PUOneUpPhotoView::make(library::ItemPointer item) {
  auto made =
      makeWith<UIView, "initWithFrame:">(classObject(), uikit::rectOfSize(uikit::screen().size));
  of(made.get()).prepare(std::move(item));
  return made;
}

void PUOneUpPhotoView::prepare(library::ItemPointer item) {
  _item = std::move(item);
  _imageView = bridge::makeView<UIImageView>({});
  insertSubview(_imageView, 0);
  self().setShowsVerticalScrollIndicator(false);
  self().setShowsHorizontalScrollIndicator(false);
  self().setContentInsetAdjustmentBehavior(UIScrollView::adjustsNever);
  const auto tap = makeRecognizer<UITapGestureRecognizer>(self(), selector<"handleDoubleTap:">());
  tap->setNumberOfTapsRequired(2);
  self().addGestureRecognizer(tap);
  if (_item->isVideo()) addPlayButton();
  load({quickSide, quickSide}, pictures::Priority::visible);
}

void PUOneUpPhotoView::addPlayButton() {
  _playButton = Owned<UIButton>::retain(UIButton::withType(UIButton::custom));
  _playButton->setFrame({{0, 0}, {playSide, playSide}});
  _playButton->setBackgroundColor(UIColor::white(0, 0.45));
  _playButton->layer().setCornerRadius(playSide / 2);
  _playButton->setTitle(NSString::make("\u25B6\uFE0E"), stateNormal);
  _playButton->setTitleColor(UIColor::whiteColor(), stateNormal);
  _playButton->titleLabel().setFont(UIFont::systemFont(30));
  _playButton->addTarget(self(), selector<"playTouched:">(), touchUpInside);
  self().addSubview(_playButton);
}

CGSize PUOneUpPhotoView::room() const {
  return bounds().size;
}

// In points at zoom 1: as large as lies in the room.
CGSize PUOneUpPhotoView::fittedSize() const {
  if (_pictureSize.width <= 0 || _pictureSize.height <= 0) return {};
  const CGSize all = room();
  const CGFloat factor = std::min(all.width / _pictureSize.width, all.height / _pictureSize.height);
  return times(_pictureSize, factor);
}

// Of the photo itself, in pixels as displayed; nothing where that is not known.
CGSize PUOneUpPhotoView::naturalSize() const {
  if (!host().library) return {};
  const auto& facts = host().library->facts(*_item);
  if (!facts) return {};
  return {static_cast<CGFloat>((*facts)->pixelWidth), static_cast<CGFloat>((*facts)->pixelHeight)};
}

CGFloat PUOneUpPhotoView::actualSizeZoom() const {
  const CGFloat fitted = fittedSize().width * uikit::screen().scale;
  const CGFloat natural = naturalSize().width;
  return fitted > 0 && natural > 0 ? natural / fitted : 1;
}

CGFloat PUOneUpPhotoView::greatestZoom() const {
  return std::max(leastGreatestZoom, actualSizeZoom() * 2);
}

void PUOneUpPhotoView::layoutSubviews() {
  super<void, "layoutSubviews">();
  if (room() == _laidOut) return;
  _laidOut = room();
  _zoom = 1;
  self().setContentOffset(CGPoint{});
  arrange();
  if (_pictureSize.width > 0) loadForRoom();
}

// The photo stands in the middle of the room, or of all that it covers.
void PUOneUpPhotoView::arrange() {
  const CGSize shown = times(fittedSize(), _zoom);
  const CGSize content = {std::max(shown.width, room().width),
                          std::max(shown.height, room().height)};
  _imageView->setFrame(
      {{(content.width - shown.width) / 2, (content.height - shown.height) / 2}, shown});
  const bool isWhole = _zoom <= 1;
  self().setContentSize(isWhole ? CGSize{} : content);
  const CGPoint mid = {content.width / 2, content.height / 2};
  if (_playButton) UIViewState::of(_playButton.get()).setCenter(mid);
  if (_failure) {
    const CGSize size = _failure->sizeThatFits(room());
    const CGFloat y = _playButton ? mid.y + playSide : mid.y - size.height / 2;
    _failure->setFrame({{0, y}, {room().width, size.height}});
  }
}

void PUOneUpPhotoView::load(CGSize pixels, pictures::Priority priority) {
  if (!host().pictures || isWithin(pixels, _asked)) return;
  _asked = pixels;
  const auto side = [](CGFloat length) {
    return static_cast<int>(std::clamp(std::ceil(length), 1.0, greatestSide));
  };
  _ticket.request(_item->path,
                  {side(pixels.width), side(pixels.height), pictures::Request::Fit::fit}, priority,
                  [this](const pictures::Outcome& outcome) { show(outcome); });
}

void PUOneUpPhotoView::loadForRoom() {
  load(times(room(), uikit::screen().scale), pictures::Priority::visible);
}

// A closer look has more pixels.
void PUOneUpPhotoView::loadForZoom() {
  const CGFloat closest = std::min(_zoom, actualSizeZoom());
  if (closest > 1.2)
    load(times(room(), uikit::screen().scale * closest), pictures::Priority::visible);
}

void PUOneUpPhotoView::show(const pictures::Outcome& outcome) {
  if (!outcome.picture) {
    if (_pictureSize.width <= 0) showFailure(outcome.reason);
    return;
  }
  if (_failure) _failure->removeFromSuperview();
  _failure.reset();
  _pictureSize = {static_cast<CGFloat>(outcome.picture->width),
                  static_cast<CGFloat>(outcome.picture->height)};
  _imageView->setImage(imageOf(outcome.picture));
  tellShortfall();
  arrange();
  if (_laidOut.width > 0) loadForRoom();
}

// What a limit cut of a video is told below the picture's middle, as failures are. Of a still it
// cuts texts alone, never the picture.
void PUOneUpPhotoView::tellShortfall() {
  if (!host().library) return;
  const auto& facts = host().library->facts(*_item);
  if (facts && (*facts)->isVideo && !(*facts)->shortfall.empty()) showWords((*facts)->shortfall);
}

void PUOneUpPhotoView::showFailure(const std::string& reason) {
  const auto& library = host().library;
  showWords("cannot be shown: " + (library ? library->noteFailure(*_item, reason) : reason));
}

void PUOneUpPhotoView::showWords(const std::string& words) {
  if (!_failure) {
    _failure = bridge::makeView<UILabel>({});
    _failure->setTextAlignment(alignCenter);
    _failure->setNumberOfLines(0);
    _failure->setFont(UIFont::systemFont(15));
    _failure->setTextColor(uikit::UIColorState::make(uikit::colors::secondaryText));
    self().addSubview(_failure);
  }
  _failure->setText(NSString::make(_item->shownName() + "\n" + words));
  arrange();
}

void PUOneUpPhotoView::zoomTo(CGFloat zoom, CGPoint at, bool animated) {
  const CGFloat next = std::clamp(zoom, 1.0, greatestZoom());
  if (next == _zoom || fittedSize().width <= 0) return;
  const CGPoint offset = self().contentOffset();
  const CGPoint place = shareOf({offset.x + at.x, offset.y + at.y}, _imageView->frame());
  const auto change = [this, next, place, at] {
    _zoom = next;
    arrange();
    const CGPoint now = pointAt(place, _imageView->frame());
    self().setContentOffset(clamped({now.x - at.x, now.y - at.y}));
  };
  const auto kept = Owned<UIView>::retain(self());
  if (animated)
    uikit::animator().animate(zoomTime, 0, uikit::AnimationCurve::easeInOut, change,
                              [kept](bool) {});
  else
    change();
  loadForZoom();
}

// At its left and right edges a finger that goes on outwards turns the page.
bool PUOneUpPhotoView::shouldBegin(UIGestureRecognizer recognizer) {
  const auto pan = self().panGestureRecognizer();
  if (recognizer != pan) return true;
  const CGPoint moved = pan.translationIn({});
  const CGPoint speed = pan.velocityIn({});
  const CGPoint way = {moved.x + speed.x, moved.y + speed.y};
  if (std::abs(way.x) <= std::abs(way.y)) return true;
  const CGPoint offset = self().contentOffset();
  const CGPoint next = {offset.x - std::copysign(1, way.x), offset.y};
  return clamped(next).x == next.x;
}

void PUOneUpPhotoView::handleDoubleTap(UIGestureRecognizer recognizer) {
  const CGPoint offset = self().contentOffset();
  const CGPoint place = recognizer.locationIn(self());
  const CGPoint at = {place.x - offset.x, place.y - offset.y};
  zoomTo(_zoom > 1 ? 1 : doubleTapZoom, at, true);
}

void PUOneUpPhotoView::play() const {
  const auto url = NSURL::fileURLWithPath(NSString::make(_item->path));
  UIApplication::sharedApplication().openURL(url);
}

}  // namespace desktop::photos_ui
