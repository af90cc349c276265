// SPDX-License-Identifier: MIT
//
// A layer keeps plain values and says `changed` where one is set to another; a view's own layer
// takes its frame and bounds from the view. Colours and paths are kept as the references that were
// given, so that they are answered unchanged.
#include "desktop/uikit/views/ca_layer.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/encodings.h"

namespace desktop::uikit {
namespace {

Owned<Object> retained(const void* reference) {
  const id object = static_cast<id>(const_cast<void*>(reference));
  return Owned<Object>::retain(Object(object));
}

}  // namespace

Class CALayerState::classObject() {
  static const Class made =
      ClassBuilder<CALayerState>("CALayer")
          .classMethod<"layer", &CALayerState::layer>()
          .method<"frame", &CALayerState::frame>()
          .method<"setFrame:", &CALayerState::setFrame>()
          .method<"bounds", &CALayerState::bounds>()
          .method<"setCornerRadius:", &CALayerState::setCornerRadius>()
          .method<"setMasksToBounds:", &CALayerState::setMasksToBounds>()
          .method<"setBorderWidth:", &CALayerState::setBorderWidth>()
          .method<"setBorderColor:", &CALayerState::setBorderColor>()
          .method<"setBackgroundColor:", &CALayerState::setBackgroundColor>()
          .method<"setShadowColor:", &CALayerState::setShadowColor>()
          .method<"setShadowOpacity:", &CALayerState::setShadowOpacity>()
          .method<"setShadowOffset:", &CALayerState::setShadowOffset>()
          .method<"setShadowRadius:", &CALayerState::setShadowRadius>()
          .method<"setShadowPath:", &CALayerState::setShadowPath>()
          .method<"setHidden:", &CALayerState::setHidden>()
          .method<"setOpacity:", &CALayerState::setOpacity>()
          .method<"addSublayer:", &CALayerState::addSublayer>()
          .method<"insertSublayer:atIndex:", &CALayerState::insertSublayer>()
          .method<"removeFromSuperlayer", &CALayerState::removeFromSuperlayer>()
          .method<"sublayers", &CALayerState::sublayersArray>()
          .build();
  return made;
}

CALayerState::~CALayerState() {
  for (const auto& sublayer : _sublayers) of(sublayer.get())._superlayer = {};
}

CALayer CALayerState::layer() {
  return makeNew<CALayer>(classObject()).autorelease();
}

CGRect CALayerState::frame() const {
  return _view ? _view.frame() : _frame;
}

CGRect CALayerState::bounds() const {
  return _view ? _view.bounds() : rectOfSize(_frame.size);
}

void CALayerState::setFrame(CGRect frame) {
  if (_view) return _view.setFrame(frame);
  _frame = frame;
  changed();
}

void CALayerState::changed() const {
  if (_view) return _view.setNeedsDisplay();
  if (_superlayer) of(_superlayer.get()).changed();
}

void CALayerState::setMasksToBounds(bool masks) {
  if (_style.masksToBounds == masks) return;
  _style.masksToBounds = masks;
  changed();
}

void CALayerState::setCornerRadius(CGFloat radius) {
  _style.cornerRadius = radius;
  changed();
}

void CALayerState::setBorderWidth(CGFloat width) {
  _style.borderWidth = width;
  changed();
}

void CALayerState::setBorderColor(CGColorRef color) {
  _style.borderColor = retained(color);
  changed();
}

void CALayerState::setBackgroundColor(CGColorRef color) {
  _style.backgroundColor = retained(color);
  changed();
}

void CALayerState::setShadowColor(CGColorRef color) {
  _style.shadowColor = retained(color);
  changed();
}

void CALayerState::setShadowOpacity(float opacity) {
  _style.shadowOpacity = opacity;
  changed();
}

void CALayerState::setShadowOffset(CGSize offset) {
  _style.shadowOffset = offset;
  changed();
}

void CALayerState::setShadowRadius(CGFloat radius) {
  _style.shadowRadius = radius;
  changed();
}

void CALayerState::setShadowPath(CGPathRef path) {
  _style.shadowPath = retained(path);
  changed();
}

void CALayerState::setHidden(bool hidden) {
  _style.isHidden = hidden;
  changed();
}

void CALayerState::setOpacity(float opacity) {
  _style.opacity = opacity;
  changed();
}

void CALayerState::addSublayer(CALayer layer) {
  insertSublayer(layer, static_cast<unsigned>(_sublayers.size()));
}

void CALayerState::insertSublayer(CALayer layer, unsigned index) {
  if (!layer || layer == CALayer(self().get())) return;
  const auto kept = Owned<CALayer>::retain(layer);
  of(layer.get()).removeFromSuperlayer();
  const std::size_t place = std::min<std::size_t>(index, _sublayers.size());
  _sublayers.insert(_sublayers.begin() + static_cast<std::ptrdiff_t>(place), kept);
  of(layer.get())._superlayer = CALayer(self().get());
  changed();
}

void CALayerState::removeFromSuperlayer() {
  if (!_superlayer) return;
  CALayerState& above = of(_superlayer.get());
  _superlayer = {};
  above.changed();
  std::erase_if(above._sublayers,
                [this](const auto& layer) { return layer.get().get() == self().get(); });
}

NSArray CALayerState::sublayersArray() const {
  const auto all = makeNew<NSMutableArray>();
  for (const auto& layer : _sublayers) all->add(layer.get());
  return Owned<NSArray>::retain(all.get()).autorelease();
}

}  // namespace desktop::uikit
