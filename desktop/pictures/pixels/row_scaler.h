// SPDX-License-Identifier: MIT
//
// Scales an image down while its rows come in, so that the large image is never in memory: each
// pixel of the result is the mean of the area that it covers.
#pragma once

#include <span>

#include "desktop/pictures/pixels/target_size.h"

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
  // The source pixels of a target pixel, along one side: those in [begin, end) lie in it whole. The
  // one at `end` may be shared: `tail` of its weight lies in it, the rest in the next one.
  struct Span {
    int begin;
    int end;
    bool isShared;
    std::uint32_t tail;
    std::uint32_t weight;  // of all together
  };

  static std::vector<Span> spansOf(int source, int target);
  void addColumns(std::span<const std::uint32_t> row);
  void addToSums(std::uint32_t weight);
  void finishRow();

  PixelSize _source;
  std::vector<Span> _columns;
  std::vector<Span> _rows;
  std::vector<std::int32_t> _line;  // the current row, scaled across: four channels a pixel
  std::vector<float> _sums;         // of the target row under work
  int _nextRow = 0;                 // of the source
  int _targetRow = 0;
  Picture _picture;
};

}  // namespace desktop::pictures
