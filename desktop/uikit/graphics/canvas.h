// SPDX-License-Identifier: MIT
//
// What views are painted on. Coordinates are in points, x to the right and y down, after the
// transforms so far.
#pragma once

#include <span>
#include <string_view>

#include "desktop/uikit/graphics/bitmap.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/graphics/path.h"
#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::uikit {

class Canvas {
 public:
  virtual ~Canvas() = default;

  // Transforms, clips and alpha last until restore.
  virtual void save() = 0;
  virtual void restore() = 0;
  virtual void transform(const CGAffineTransform& by) = 0;
  virtual void clip(CGRect rect, CGFloat cornerRadius) = 0;
  // From here to restore everything is painted as one picture of this alpha.
  virtual void beginGroup(double alpha, CGRect bounds) = 0;

  virtual void fill(CGRect rect, Color color, CGFloat cornerRadius) = 0;
  virtual void fill(const Path& path, Color color) = 0;
  // A line along the path, half of its width on each side, with round ends.
  virtual void stroke(const Path& path, CGFloat width, Color color) = 0;
  // The soft shadow of what the path encloses; blur is the radius in points.
  virtual void shadow(const Path& path, Color color, CGSize offset, CGFloat blur) = 0;
  // Colours at even distances from start to end, which are fractions of the rectangle.
  virtual void gradient(CGRect rect, std::span<const Color> colors, CGPoint start, CGPoint end,
                        CGFloat cornerRadius) = 0;
  virtual void image(const SharedBitmap& bitmap, CGRect rect) = 0;
  // One line of text that begins at a point of its baseline.
  virtual void text(std::u16string_view line, const FontFace& face, Color color,
                    CGPoint baseline) = 0;
  // Whether nothing inside the rectangle would be seen.
  virtual bool isClippedAway(CGRect rect) const = 0;
};

}  // namespace desktop::uikit
