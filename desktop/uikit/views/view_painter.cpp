// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/view_painter.h"

#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/ui_bezier_path.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ca_gradient_layer.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

void paintShadow(const CALayerState::Style& style, CGRect bounds, Canvas& canvas) {
  if (!(style.shadowOpacity > 0) || style.masksToBounds) return;
  const Color color = style.shadowColor ? UIColorState::valueOf(style.shadowColor) : colors::black;
  const Path* given = UIBezierPathState::valueOf(style.shadowPath.get());
  const Path path = given ? *given : Path::roundedRect(bounds, style.cornerRadius);
  canvas.shadow(path, color.withAlpha(color.alpha * static_cast<double>(style.shadowOpacity)),
                style.shadowOffset, style.shadowRadius);
}

void paintBorder(const CALayerState::Style& style, CGRect bounds, Canvas& canvas) {
  if (!(style.borderWidth > 0)) return;
  const Color color = style.borderColor ? UIColorState::valueOf(style.borderColor) : colors::black;
  const CGFloat half = style.borderWidth / 2;
  canvas.stroke(Path::roundedRect(inset(bounds, half, half), style.cornerRadius - half),
                style.borderWidth, color);
}

void paintLayer(CALayer layer, Canvas& canvas) {
  const CALayerState& state = CALayerState::of(layer.get());
  const CALayerState::Style& style = state.style();
  const CGRect frame = state.frame();
  if (style.isHidden || !(style.opacity > 0)) return;
  canvas.save();
  canvas.transform(translation(frame.origin));
  const CGRect bounds = rectOfSize(frame.size);
  if (style.opacity < 1) canvas.beginGroup(static_cast<double>(style.opacity), bounds);
  paintShadow(style, bounds, canvas);
  if (style.backgroundColor)
    canvas.fill(bounds, UIColorState::valueOf(style.backgroundColor), style.cornerRadius);
  if (isKindOf(layer, CAGradientLayerState::classObject())) {
    const CAGradientLayerState& gradient = CAGradientLayerState::of(layer.get());
    const std::vector<Color> values = gradient.colors();
    if (!values.empty())
      canvas.gradient(bounds, values, gradient.startPoint(), gradient.endPoint(),
                      style.cornerRadius);
  }
  if (style.masksToBounds) canvas.clip(bounds, style.cornerRadius);
  for (const auto& sublayer : state.sublayers()) paintLayer(sublayer, canvas);
  paintBorder(style, bounds, canvas);
  canvas.restore();
}

// What of a view can be seen at all: its bounds, or anything where it does not clip.
bool isOutOfSight(const UIViewState& view, const CALayerState::Style& style, CGRect bounds,
                  const Canvas& canvas) {
  const bool reachesOut =
      !style.masksToBounds && (!view.subviews().empty() || style.shadowOpacity > 0);
  return !reachesOut && canvas.isClippedAway(bounds);
}

}  // namespace

void paintView(UIView view, Canvas& canvas) {
  const UIViewState& state = UIViewState::of(view.get());
  const ViewAppearance seen = state.shown();
  if (state.isHidden() || !(seen.alpha > 0)) return;
  const CALayerState& layer = CALayerState::of(state.layer().get());
  const CALayerState::Style& style = layer.style();
  canvas.save();
  canvas.transform(state.toSuperview());
  if (!isOutOfSight(state, style, seen.bounds, canvas)) {
    if (seen.alpha < 1) canvas.beginGroup(seen.alpha, seen.bounds);
    paintShadow(style, seen.bounds, canvas);
    if (seen.background.alpha > 0) canvas.fill(seen.bounds, seen.background, style.cornerRadius);
    if (style.masksToBounds) canvas.clip(seen.bounds, style.cornerRadius);
    for (const auto& sublayer : layer.sublayers()) paintLayer(sublayer, canvas);
    drawContent(view, &canvas);
    for (const auto& subview : state.subviews()) paintView(subview, canvas);
    drawOverSubviews(view, &canvas);
    paintBorder(style, seen.bounds, canvas);
  }
  canvas.restore();
}

}  // namespace desktop::uikit
