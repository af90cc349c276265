// SPDX-License-Identifier: MIT
//
// Tests of whole tag tables: one case a row, in both byte orders.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

#include "media/image/ifd/tag_table.h"
#include "model/description.h"
#include "tests/support/tiff_builder.h"

namespace media::image {

struct TagCase {
  std::string_view key;
  FieldToWrite field;
  std::optional<model::Value> shown;  // none: the key is absent
};

using SectionReader = void (*)(TiffStructure&, const Ifd&, model::Dictionary&);

// The section that one field alone is read into; empty where there is none.
inline model::Dictionary readField(const FieldToWrite& field, io::ByteOrder order,
                                   SectionReader readSection, std::string_view name) {
  const Bytes bytes = buildTiff(order, {{field}});
  auto structure = TiffStructure::open(io::ByteView(bytes));
  if (!structure) return {};
  const auto ifd = structure->readIfd(structure->firstIfd());
  if (!ifd) return {};
  model::Dictionary properties;
  readSection(*structure, *ifd, properties);
  const model::Value* section = model::find(properties, name);
  return section ? *section->asDictionary() : model::Dictionary();
}

inline void expectShown(std::span<const TagCase> cases, SectionReader readSection,
                        std::string_view name) {
  for (const TagCase& one : cases) {
    model::Dictionary expected;
    if (one.shown) expected.emplace(one.key, *one.shown);
    for (const io::ByteOrder order : {io::ByteOrder::big, io::ByteOrder::little}) {
      const model::Dictionary section = readField(one.field, order, readSection, name);
      EXPECT_EQ(section, expected)
          << one.key << " of tag " << one.field.tag << " is " << model::description(section);
    }
  }
}

// Fails for every row of the table that no case shows.
inline void expectEveryRowIn(std::span<const TagRow> rows, std::span<const TagCase> cases) {
  for (const TagRow& row : rows) {
    const bool isTried = std::ranges::any_of(cases, [&](const TagCase& one) {
      return one.field.tag == row.tag && one.key == row.key && one.shown;
    });
    EXPECT_TRUE(isTried) << row.key;
  }
}

}  // namespace media::image
