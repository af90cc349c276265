// SPDX-License-Identifier: MIT
//
// Scales an image down while its rows come in, so that the large image is never in memory: each
// pixel of the result is the mean of the area that it covers.
#pragma once

#include <span>

#include "desktop/pictures/target_size.h"

namespace desktop::pictures {

class RowScaler {
 public:
  // REQUIRES: neither size is empty, and the source covers the target.
  RowScaler(PixelSize source, PixelSize target);

  // The next row of the source, with premultiplied colours. Rows behind the last are ignored.
  // REQUIRES: it is as long as the source is wide.
  void addRow(std::span<const std::uint32_t> row);

  // The picture; what no row came for is transparent. The scaler is empty afterwards.
  Picture take();

 private:
  // How much of a source pixel goes to its first target pixel; the rest goes to the next one.
  struct Share {
    int target;
    std::uint32_t weight;  // up to wholeWeight
  };
  static constexpr std::uint32_t wholeWeight = 256;

  static std::vector<Share> sharesOf(int source, int target);
  static std::vector<std::uint32_t> weightSums(const std::vector<Share>& shares, int target);
  void addColumns(std::span<const std::uint32_t> row);
  void addToSums(std::uint32_t weight);
  void finishRow();

  PixelSize _source;
  std::vector<Share> _columns;
  std::vector<std::uint32_t> _columnWeights;  // of each target column
  std::vector<Share> _rows;
  std::vector<std::uint32_t> _rowWeights;  // of each target row
  std::vector<std::uint32_t> _line;        // the current row, scaled across: four channels a pixel
  std::vector<float> _sums;                // of the target row under work
  int _nextRow = 0;
  Picture _picture;
};

}  // namespace desktop::pictures
