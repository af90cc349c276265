// SPDX-License-Identifier: MIT
//
// CALayer: what stands behind a view's content and around its edge. A view's layer takes its
// geometry from the view; a sublayer has a frame of its own.
#pragma once

#include <vector>

#include "bridge/bound.h"
#include "bridge/quartz.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/graphics/path.h"

namespace desktop::uikit {

class CALayerState : public Bound<CALayerState, NSObject, CALayer> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Radii and widths are in points; colours nil where unset.
  struct Style {
    CGFloat cornerRadius = 0;
    CGFloat borderWidth = 0;
    Owned<Object> borderColor;
    Owned<Object> backgroundColor;  // of a sublayer
    Owned<Object> shadowColor;      // nil is black
    float shadowOpacity = 0;
    CGSize shadowOffset{0, -3};
    CGFloat shadowRadius = 3;
    Owned<Object> shadowPath;  // nil is the layer's own outline
    bool masksToBounds = false;
    bool isHidden = false;
    float opacity = 1;
  };
  const Style& style() const { return _style; }
  bool masksToBounds() const { return _style.masksToBounds; }
  void setMasksToBounds(bool masks);

  // In the superlayer's coordinates; for a view's layer, the view's.
  CGRect frame() const;
  CGRect bounds() const;
  void setFrame(CGRect frame);
  const std::vector<Owned<CALayer>>& sublayers() const { return _sublayers; }

  // The view that this is the layer of, or none; a view detaches itself when it goes.
  void setView(UIView view) { _view = view; }

 private:
  void setCornerRadius(CGFloat radius);
  void setBorderWidth(CGFloat width);
  void setBorderColor(CGColorRef color);
  void setBackgroundColor(CGColorRef color);
  void setShadowColor(CGColorRef color);
  void setShadowOpacity(float opacity);
  void setShadowOffset(CGSize offset);
  void setShadowRadius(CGFloat radius);
  void setShadowPath(CGPathRef path);
  void setHidden(bool hidden);
  void setOpacity(float opacity);
  void addSublayer(CALayer layer);
  void insertSublayer(CALayer layer, unsigned index);
  void removeFromSuperlayer();
  NSArray sublayersArray() const;
  static CALayer layer();

  // Asks for painting again.
  void changed() const;

  UIView _view;         // borrowed
  CALayer _superlayer;  // borrowed
  CGRect _frame;
  Style _style;
  std::vector<Owned<CALayer>> _sublayers;

 public:
  ~CALayerState();
};

}  // namespace desktop::uikit
