// SPDX-License-Identifier: MIT
//
// Across, whole pixels are added up two channels at a time, and the one that lies in two target
// pixels is shared with weights of 1/128. Sides of images have at most 65,535 pixels here, so 31
// bits hold the sums: 255 * 128 * 65,535 < 2^31. Down, the scaled lines are added likewise as
// floats. Each sum is divided by the weights that went into it, so an even area keeps its exact
// colour.
#include "desktop/pictures/pixels/row_scaler.h"

#include <algorithm>
#include <array>

namespace desktop::pictures {

namespace {

constexpr std::size_t channels = 4;
constexpr std::uint32_t wholeWeight = 128;  // of a pixel that lies in one target pixel

using Channels = std::array<std::uint32_t, channels>;

std::size_t index(int number) {
  return static_cast<std::size_t>(number);
}

void addPixel(std::uint32_t pixel, std::uint32_t weight, Channels& sum) {
  for (std::size_t channel = 0; channel < channels; ++channel)
    sum[channel] += (pixel >> (8 * channel) & 0xFF) * weight;
}

// Adds pixels with their whole weight. Two channels lie in the halves of a number, which hold 257
// of them.
void addWhole(std::span<const std::uint32_t> pixels, Channels& sum) {
  constexpr std::uint32_t everyOther = 0x00FF00FF;
  constexpr std::size_t most = 257;
  for (; !pixels.empty(); pixels = pixels.subspan(std::min(most, pixels.size()))) {
    std::uint32_t even = 0;
    std::uint32_t odd = 0;
    for (const std::uint32_t pixel : pixels.first(std::min(most, pixels.size()))) {
      even += pixel & everyOther;
      odd += pixel >> 8 & everyOther;
    }
    sum[0] += (even & 0xFFFF) * wholeWeight;
    sum[1] += (odd & 0xFFFF) * wholeWeight;
    sum[2] += (even >> 16) * wholeWeight;
    sum[3] += (odd >> 16) * wholeWeight;
  }
}

}  // namespace

std::vector<RowScaler::Span> RowScaler::spansOf(int source, int target) {
  std::vector<Span> spans(index(target));
  int begin = 0;
  std::uint32_t head = 0;  // the share of the pixel before `begin`
  for (int at = 0; at < target; ++at) {
    // In units of 1/target of a source pixel, a target pixel is `source` wide.
    const std::int64_t border = std::int64_t{at + 1} * source;
    const int end = static_cast<int>(border / target);
    const auto tail = static_cast<std::uint32_t>(border % target * wholeWeight / target);
    const auto whole = static_cast<std::uint32_t>(end - begin) * wholeWeight;
    const bool isShared = border % target != 0;
    spans[index(at)] = {begin, end, isShared, tail, head + whole + tail};
    begin = isShared ? end + 1 : end;
    head = isShared ? wholeWeight - tail : 0;
  }
  return spans;
}

RowScaler::RowScaler(PixelSize source, PixelSize target)
    : _source(source),
      _columns(spansOf(source.width, target.width)),
      _rows(spansOf(source.height, target.height)),
      _line(index(target.width) * channels),
      _sums(index(target.width) * channels) {
  _picture.width = target.width;
  _picture.height = target.height;
  _picture.pixels.resize(index(target.width) * index(target.height));
}

void RowScaler::addColumns(std::span<const std::uint32_t> row) {
  Channels head{};  // of the pixel that the column before has a share of
  std::int32_t* out = _line.data();
  for (const Span& column : _columns) {
    Channels sum = head;
    addWhole(row.subspan(index(column.begin), index(column.end - column.begin)), sum);
    head = {};
    if (column.isShared) {
      const std::uint32_t pixel = row[index(column.end)];
      addPixel(pixel, column.tail, sum);
      addPixel(pixel, wholeWeight - column.tail, head);
    }
    for (const std::uint32_t channel : sum) *out++ = static_cast<std::int32_t>(channel);
  }
}

void RowScaler::addToSums(std::uint32_t weight) {
  const auto factor = static_cast<float>(weight);
  for (std::size_t at = 0; at < _sums.size(); ++at)
    _sums[at] += static_cast<float>(_line[at]) * factor;
}

void RowScaler::finishRow() {
  const auto rowWeight = static_cast<float>(_rows[index(_targetRow)].weight);
  std::uint32_t* pixel = &_picture.pixels[index(_targetRow) * index(_picture.width)];
  const float* sum = _sums.data();
  for (const Span& column : _columns) {
    const float share = 1 / (static_cast<float>(column.weight) * rowWeight);
    std::uint32_t value = 0;
    for (std::size_t channel = 0; channel < channels; ++channel) {
      // Cut off, half a level more is rounded: means are not negative.
      const float mean = *sum++ * share + 0.5F;
      value |= std::min(255u, static_cast<std::uint32_t>(mean)) << (8 * channel);
    }
    *pixel++ = value;
  }
  std::ranges::fill(_sums, 0.0F);
  ++_targetRow;
}

void RowScaler::addRow(std::span<const std::uint32_t> row) {
  if (_nextRow >= _source.height) return;
  const int number = _nextRow++;
  if (_source == PixelSize{_picture.width, _picture.height}) {
    std::ranges::copy(row, &_picture.pixels[index(number) * row.size()]);
    return;
  }
  addColumns(row);
  const Span span = _rows[index(_targetRow)];
  if (number < span.end) addToSums(wholeWeight);
  if (number == span.end) {
    addToSums(span.tail);
    finishRow();
    addToSums(wholeWeight - span.tail);
  } else if (_nextRow == span.end && !span.isShared) {
    finishRow();
  }
}

Picture RowScaler::take() {
  return std::move(_picture);
}

}  // namespace desktop::pictures
