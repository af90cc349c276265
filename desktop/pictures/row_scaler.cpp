// SPDX-License-Identifier: MIT
//
// Across, a source pixel's channels are added to the one or two target pixels it lies in, with
// weights of 1/256. Sides of images have at most 65,535 pixels here, so 32 bits hold the sums:
// 255 * 256 * 65,535 < 2^32. Down, the scaled lines are added likewise as floats. Each sum is
// divided by the weights that went into it, so an even area keeps its exact colour.
#include "desktop/pictures/row_scaler.h"

#include <algorithm>

namespace desktop::pictures {

namespace {

constexpr std::size_t channels = 4;

std::size_t index(int number) {
  return static_cast<std::size_t>(number);
}

}  // namespace

std::vector<RowScaler::Share> RowScaler::sharesOf(int source, int target) {
  std::vector<Share> shares(index(source));
  for (int at = 0; at < source; ++at) {
    // In units of 1/source of a target pixel, a source pixel is `target` wide.
    const std::int64_t begin = std::int64_t{at} * target;
    const std::int64_t first = begin / source;
    const std::int64_t inside = std::min<std::int64_t>(target, (first + 1) * source - begin);
    const auto weight = static_cast<std::uint32_t>((inside * wholeWeight + target / 2) / target);
    shares[index(at)] = {static_cast<int>(first), weight};
  }
  return shares;
}

std::vector<std::uint32_t> RowScaler::weightSums(const std::vector<Share>& shares, int target) {
  std::vector<std::uint32_t> sums(index(target));
  for (const Share& share : shares) {
    sums[index(share.target)] += share.weight;
    if (share.weight < wholeWeight) sums[index(share.target + 1)] += wholeWeight - share.weight;
  }
  return sums;
}

RowScaler::RowScaler(PixelSize source, PixelSize target)
    : _source(source),
      _columns(sharesOf(source.width, target.width)),
      _columnWeights(weightSums(_columns, target.width)),
      _rows(sharesOf(source.height, target.height)),
      _rowWeights(weightSums(_rows, target.height)),
      // One pixel more, for the weight of 0 behind the last one.
      _line((index(target.width) + 1) * channels),
      _sums(index(target.width) * channels) {
  _picture.width = target.width;
  _picture.height = target.height;
  _picture.pixels.resize(index(target.width) * index(target.height));
}

void RowScaler::addColumns(std::span<const std::uint32_t> row) {
  std::ranges::fill(_line, 0);
  const Share* share = _columns.data();
  for (const std::uint32_t pixel : row) {
    std::uint32_t* sum = &_line[index(share->target) * channels];
    const std::uint32_t weight = share->weight;
    const std::uint32_t rest = wholeWeight - weight;
    for (std::size_t channel = 0; channel < channels; ++channel) {
      const std::uint32_t value = (pixel >> (8 * channel)) & 0xFF;
      sum[channel] += value * weight;
      sum[channels + channel] += value * rest;
    }
    ++share;
  }
}

void RowScaler::addToSums(std::uint32_t weight) {
  const auto factor = static_cast<float>(weight);
  for (std::size_t at = 0; at < _sums.size(); ++at)
    _sums[at] += static_cast<float>(_line[at]) * factor;
}

void RowScaler::finishRow() {
  const int row = _rows[index(_nextRow)].target;
  const auto rowWeight = static_cast<float>(_rowWeights[index(row)]);
  std::uint32_t* pixel = &_picture.pixels[index(row) * index(_picture.width)];
  for (int column = 0; column < _picture.width; ++column) {
    const float divisor = static_cast<float>(_columnWeights[index(column)]) * rowWeight;
    std::uint32_t value = 0;
    for (std::size_t channel = 0; channel < channels; ++channel) {
      const float mean = _sums[index(column) * channels + channel] / divisor;
      value |= std::min(255u, static_cast<std::uint32_t>(mean + 0.5F)) << (8 * channel);
    }
    pixel[column] = value;
  }
  std::ranges::fill(_sums, 0.0F);
}

void RowScaler::addRow(std::span<const std::uint32_t> row) {
  if (_nextRow >= _source.height) return;
  const Share share = _rows[index(_nextRow)];
  if (_source == PixelSize{_picture.width, _picture.height}) {
    std::ranges::copy(row, &_picture.pixels[index(_nextRow++) * row.size()]);
    return;
  }
  addColumns(row);
  addToSums(share.weight);
  const bool isLast = _nextRow + 1 == _source.height;
  if (isLast || _rows[index(_nextRow + 1)].target != share.target) {
    finishRow();
    if (share.weight < wholeWeight) addToSums(wholeWeight - share.weight);
  }
  ++_nextRow;
}

Picture RowScaler::take() {
  return std::move(_picture);
}

}  // namespace desktop::pictures
