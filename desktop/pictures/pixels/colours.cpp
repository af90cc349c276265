// SPDX-License-Identifier: MIT
#include "desktop/pictures/pixels/colours.h"

#include <QColorSpace>
#include <QColorTransform>
#include <QImage>

#include "desktop/pictures/pixels/limits.h"

namespace desktop::pictures {

namespace {

void convert(const QColorSpace& from, Picture& picture) {
  const QColorSpace srgb(QColorSpace::SRgb);
  if (!from.isValid() || from == srgb) return;
  // Borrows the pixels, which are changed in place.
  QImage image(reinterpret_cast<uchar*>(picture.pixels.data()), picture.width, picture.height,
               picture.width * qsizetype{sizeof(std::uint32_t)},
               QImage::Format_ARGB32_Premultiplied);
  image.applyColorTransform(from.transformationToColorSpace(srgb));
}

}  // namespace

std::uint32_t premultiplied(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24;
  if (alpha == 255) return pixel;
  const auto channel = [&](int shift) {
    return (((pixel >> shift) & 0xFF) * alpha + 127) / 255 << shift;
  };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

void convertToSrgb(std::span<const std::uint8_t> profile, Picture& picture) {
  if (profile.empty() || profile.size() > limits.profileBytes) return;
  convert(
      QColorSpace::fromIccProfile(QByteArray::fromRawData(
          reinterpret_cast<const char*>(profile.data()), static_cast<qsizetype>(profile.size()))),
      picture);
}

void convertPrimariesToSrgb(int primaries, Picture& picture) {
  constexpr int displayP3 = 12;
  if (primaries == displayP3) convert(QColorSpace(QColorSpace::DisplayP3), picture);
}

}  // namespace desktop::pictures
