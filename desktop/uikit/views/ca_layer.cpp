// SPDX-License-Identifier: MIT
//
// A layer keeps plain values and says `changed` where one is set to another; a view's own layer
// takes its frame and bounds from the view. Colours and paths are kept as the references that were
// given, so that they are answered unchanged.
#include "desktop/uikit/views/ca_layer.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/encodings.h"

namespace desktop::uikit {
namespace {

bridge::Owned<bridge::Object> retained(const void* reference) {
  const id object = static_cast<id>(const_cast<void*>(reference));
  return bridge::Owned<bridge::Object>::retain(bridge::Object(object));
}

}  // namespace

Class CALayer::classObject() {
  static const Class made = bridge::ClassBuilder<CALayer>("CALayer")
                                .classMethod<"layer", &CALayer::layer>()
                                .method<"frame", &CALayer::frame>()
                                .method<"setFrame:", &CALayer::setFrame>()
                                .method<"bounds", &CALayer::bounds>()
                                .method<"setCornerRadius:", &CALayer::setCornerRadius>()
                                .method<"setMasksToBounds:", &CALayer::setMasksToBounds>()
                                .method<"setBorderWidth:", &CALayer::setBorderWidth>()
                                .method<"setBorderColor:", &CALayer::setBorderColor>()
                                .method<"setBackgroundColor:", &CALayer::setBackgroundColor>()
                                .method<"setShadowColor:", &CALayer::setShadowColor>()
                                .method<"setShadowOpacity:", &CALayer::setShadowOpacity>()
                                .method<"setShadowOffset:", &CALayer::setShadowOffset>()
                                .method<"setShadowRadius:", &CALayer::setShadowRadius>()
                                .method<"setShadowPath:", &CALayer::setShadowPath>()
                                .method<"setHidden:", &CALayer::setHidden>()
                                .method<"setOpacity:", &CALayer::setOpacity>()
                                .method<"addSublayer:", &CALayer::addSublayer>()
                                .method<"insertSublayer:atIndex:", &CALayer::insertSublayer>()
                                .method<"removeFromSuperlayer", &CALayer::removeFromSuperlayer>()
                                .method<"sublayers", &CALayer::sublayersArray>()
                                .build();
  return made;
}

CALayer::~CALayer() {
  for (const auto& sublayer : _sublayers) of(sublayer.get())._superlayer = {};
}

bridge::CALayer CALayer::layer() {
  return bridge::Owned<bridge::CALayer>::adopt(bridge::send<bridge::CALayer, "new">(classObject()))
      .autorelease();
}

CGRect CALayer::frame() const {
  return _view ? _view.frame() : _frame;
}

CGRect CALayer::bounds() const {
  return _view ? _view.bounds() : rectOfSize(_frame.size);
}

void CALayer::setFrame(CGRect frame) {
  if (_view) return _view.setFrame(frame);
  _frame = frame;
  changed();
}

void CALayer::changed() const {
  if (_view) return bridge::send<void, "setNeedsDisplay">(_view);
  if (_superlayer) of(_superlayer.get()).changed();
}

void CALayer::setMasksToBounds(bool masks) {
  if (_style.masksToBounds == masks) return;
  _style.masksToBounds = masks;
  changed();
}

void CALayer::setCornerRadius(CGFloat radius) {
  _style.cornerRadius = radius;
  changed();
}

void CALayer::setBorderWidth(CGFloat width) {
  _style.borderWidth = width;
  changed();
}

void CALayer::setBorderColor(CGColorRef color) {
  _style.borderColor = retained(color);
  changed();
}

void CALayer::setBackgroundColor(CGColorRef color) {
  _style.backgroundColor = retained(color);
  changed();
}

void CALayer::setShadowColor(CGColorRef color) {
  _style.shadowColor = retained(color);
  changed();
}

void CALayer::setShadowOpacity(float opacity) {
  _style.shadowOpacity = opacity;
  changed();
}

void CALayer::setShadowOffset(CGSize offset) {
  _style.shadowOffset = offset;
  changed();
}

void CALayer::setShadowRadius(CGFloat radius) {
  _style.shadowRadius = radius;
  changed();
}

void CALayer::setShadowPath(CGPathRef path) {
  _style.shadowPath = retained(path);
  changed();
}

void CALayer::setHidden(bool hidden) {
  _style.isHidden = hidden;
  changed();
}

void CALayer::setOpacity(float opacity) {
  _style.opacity = opacity;
  changed();
}

void CALayer::addSublayer(bridge::CALayer layer) {
  insertSublayer(layer, static_cast<unsigned>(_sublayers.size()));
}

void CALayer::insertSublayer(bridge::CALayer layer, unsigned index) {
  if (!layer || layer == bridge::CALayer(self().get())) return;
  const auto kept = bridge::Owned<bridge::CALayer>::retain(layer);
  of(layer.get()).removeFromSuperlayer();
  const std::size_t place = std::min<std::size_t>(index, _sublayers.size());
  _sublayers.insert(_sublayers.begin() + static_cast<std::ptrdiff_t>(place), kept);
  of(layer.get())._superlayer = bridge::CALayer(self().get());
  changed();
}

void CALayer::removeFromSuperlayer() {
  if (!_superlayer) return;
  CALayer& above = of(_superlayer.get());
  _superlayer = {};
  above.changed();
  std::erase_if(above._sublayers,
                [this](const auto& layer) { return layer.get().get() == self().get(); });
}

bridge::NSArray CALayer::sublayersArray() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& layer : _sublayers) all->add(layer.get());
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

}  // namespace desktop::uikit
