// SPDX-License-Identifier: MIT
#include "samples/coding/yuv_frame.h"

namespace samples {

namespace {

struct Matrix {
  float red, blue;              // shares of luminance
  float lumaScale, lumaOffset;  // of 0..1
  float chromaScale;
};

constexpr Matrix matrices[] = {{0.299f, 0.114f, 255, 0, 255}, {0.2126f, 0.0722f, 219, 16, 224}};

std::uint8_t byteOf(float value) {
  return static_cast<std::uint8_t>(std::clamp(value + 0.5f, 0.0f, 255.0f));
}

float lumaOf(const Rgb& color, const Matrix& matrix) {
  return matrix.red * color.red + (1 - matrix.red - matrix.blue) * color.green +
         matrix.blue * color.blue;
}

Rgb bounded(const Rgb& color) {
  return {std::clamp(color.red, 0.0f, 1.0f), std::clamp(color.green, 0.0f, 1.0f),
          std::clamp(color.blue, 0.0f, 1.0f)};
}

// Two by two pixels from (x, y): four luminances and the mean colour.
void fillBlock(const Picture& picture, int x, int y, const Matrix& matrix,
               const YuvPlanes& target) {
  Rgb sum;
  for (int row = y; row < y + 2; ++row) {
    for (int column = x; column < x + 2; ++column) {
      const Rgb color = bounded(picture.at(column, row));
      sum = sum + color;
      target.planes[0][row * target.strides[0] + column] =
          byteOf(matrix.lumaOffset + matrix.lumaScale * lumaOf(color, matrix));
    }
  }
  const Rgb mean = sum * 0.25f;
  const float luma = lumaOf(mean, matrix);
  const float blue = (mean.blue - luma) / (2 * (1 - matrix.blue));
  const float red = (mean.red - luma) / (2 * (1 - matrix.red));
  target.planes[1][y / 2 * target.strides[1] + x / 2] = byteOf(128 + matrix.chromaScale * blue);
  target.planes[2][y / 2 * target.strides[2] + x / 2] = byteOf(128 + matrix.chromaScale * red);
}

}  // namespace

void fillYuv(const Picture& picture, YuvRange range, const YuvPlanes& target) {
  const Matrix& matrix = matrices[static_cast<std::size_t>(range)];
  for (int y = 0; y + 1 < picture.height(); y += 2)
    for (int x = 0; x + 1 < picture.width(); x += 2) fillBlock(picture, x, y, matrix, target);
}

}  // namespace samples
