// SPDX-License-Identifier: MIT
//
// The screen as a picture: no display is needed.
#pragma once

#include <QImage>
#include <optional>
#include <string>
#include <vector>

#include "desktop/render/soft_shadow.h"
#include "model/result.h"

namespace desktop::render {

// The windows as pixels, painted again only where the screen says that something changed.
class ScreenPicture {
 public:
  // Paints what changed since the last time, or everything after a change of size or scale; pixels
  // stand `scale` to a point. Answers what was painted, in points.
  std::vector<CGRect> update(double scale);
  const QImage& image() const { return _image; }

 private:
  QImage _image;
  double _scale = 0;
  ShadowCache _shadows;
};

// Writes the screen as it is now to a PNG file; answers what went wrong. The screen's damage stays
// as it is.
std::optional<model::Error> writeScreenshot(const std::string& path, double scale);

}  // namespace desktop::render
