// SPDX-License-Identifier: MIT
#include "media/image/ifd/tag_table.h"

#include <algorithm>
#include <utility>

#include "media/image/blocks/shortfall.h"
#include "model/utf8.h"

namespace media::image {

namespace {

using ValueAt = std::optional<model::Value> (*)(const TiffField&, std::size_t);

std::optional<model::Value> integerAt(const TiffField& field, std::size_t index) {
  const auto value = field.integer(index);
  if (!value) return std::nullopt;
  if (field.type == FieldType::unsignedLong) {
    return model::Value(static_cast<std::int32_t>(*value));
  }
  return model::Value(*value);
}

std::optional<model::Value> realAt(const TiffField& field, std::size_t index) {
  const auto value = field.real(index);
  return value ? std::optional<model::Value>(*value) : std::nullopt;
}

// 0/0 among several fractions stands for what is not known, such as the apertures of a lens. It is
// shown as 0, so that the others keep their places.
std::optional<model::Value> realAmongSeveral(const TiffField& field, std::size_t index) {
  const auto ratio = field.fraction(index);
  if (ratio && ratio->numerator == 0 && ratio->denominator == 0) return model::Value(0.0);
  return realAt(field, index);
}

// All values of the field; none where there is none, or one that cannot be shown.
std::optional<model::Value> arrayOf(const TiffField& field, ValueAt valueAt) {
  if (field.count == 0 || field.count > limits.valuesPerField) return std::nullopt;
  model::Array values;
  values.reserve(field.count);
  for (std::size_t index = 0; index < field.count; ++index) {
    auto value = valueAt(field, index);
    if (!value) return std::nullopt;
    values.push_back(*std::move(value));
  }
  return model::Value(std::move(values));
}

std::optional<model::Value> oneOrSeveralReals(const TiffField& field) {
  return field.count == 1 ? realAt(field, 0) : arrayOf(field, realAmongSeveral);
}

const TagRow* rowOf(std::span<const TagRow> rows, std::uint16_t tag) {
  const auto row = std::ranges::lower_bound(rows, tag, {}, &TagRow::tag);
  return row != rows.end() && row->tag == tag ? &*row : nullptr;
}

}  // namespace

void readTags(TiffStructure& structure, const Ifd& ifd, std::span<const TagRow> rows,
              std::string_view sectionName, model::Dictionary& properties) {
  model::Dictionary read;
  for (const IfdEntry& entry : ifd.entries) {
    const TagRow* row = rowOf(rows, entry.tag);
    if (!row || read.contains(row->key)) continue;
    const auto field = structure.field(entry);
    auto value = field ? row->valueOf(*field) : std::nullopt;
    if (!value) continue;
    read.emplace(row->key, *std::move(value));
    if (field->count < entry.count) noteShortfall(properties, cutText);
  }
  if (read.empty()) return;
  auto [entry, isNew] = properties.try_emplace(std::string(sectionName));
  if (const model::Dictionary* known = entry->second.asDictionary()) {
    read.insert(known->begin(), known->end());
  }
  entry->second = std::move(read);
}

std::optional<model::Value> integerValue(const TiffField& field) {
  if (!isInteger(field.type)) return oneOrSeveralReals(field);
  return field.count == 1 ? integerAt(field, 0) : arrayOf(field, integerAt);
}

std::optional<model::Value> integerArray(const TiffField& field) {
  return arrayOf(field, isInteger(field.type) ? integerAt : realAt);
}

std::optional<model::Value> firstInteger(const TiffField& field) {
  return integerAt(field, 0);
}

std::optional<model::Value> realValue(const TiffField& field) {
  return oneOrSeveralReals(field);
}

std::optional<model::Value> textValue(const TiffField& field) {
  if (!isTextLike(field.type) || field.count == 0) return std::nullopt;
  return model::Value(model::utf8OrLatin1(field.text()));
}

std::optional<model::Value> trimmedText(const TiffField& field) {
  if (!isTextLike(field.type)) return std::nullopt;
  const std::string_view text = field.text();
  const std::size_t end = text.find_last_not_of(' ') + 1;
  if (end == 0) return std::nullopt;
  return model::Value(model::utf8OrLatin1(text.substr(0, end)));
}

}  // namespace media::image
