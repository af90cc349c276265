// SPDX-License-Identifier: MIT
#include "media/image/xmp/xmp_regions.h"

#include "media/image/xmp/xmp_conversions.h"

namespace media::image {

namespace {

using Conversion = std::optional<model::Value> (*)(const XmpValue&);

struct FieldRow {
  XmpName name;
  std::string_view key;
  Conversion convert;
};

constexpr FieldRow dimensionFields[] = {
    {{XmpNamespace::stDimensions, "h"}, "HeightAppliedTo", xmpInteger},
    {{XmpNamespace::stDimensions, "w"}, "WidthAppliedTo", xmpInteger},
};

constexpr FieldRow areaFields[] = {
    {{XmpNamespace::stArea, "h"}, "Height", xmpRealValue},
    {{XmpNamespace::stArea, "w"}, "Width", xmpRealValue},
    {{XmpNamespace::stArea, "x"}, "X", xmpRealValue},
    {{XmpNamespace::stArea, "y"}, "Y", xmpRealValue},
};

constexpr FieldRow regionFields[] = {
    {{XmpNamespace::mwgRegions, "Description"}, "Description", xmpText},
    {{XmpNamespace::mwgRegions, "Name"}, "Name", xmpText},
    {{XmpNamespace::mwgRegions, "Type"}, "Type", xmpText},
};

constexpr FieldRow faceFields[] = {
    {{XmpNamespace::appleFaceInfo, "AngleInfoRoll"}, "AngleInfoRoll", xmpInteger},
    {{XmpNamespace::appleFaceInfo, "AngleInfoYaw"}, "AngleInfoYaw", xmpInteger},
    {{XmpNamespace::appleFaceInfo, "ConfidenceLevel"}, "ConfidenceLevel", xmpInteger},
    {{XmpNamespace::appleFaceInfo, "FaceID"}, "FaceID", xmpInteger},
    {{XmpNamespace::appleFaceInfo, "Timestamp"}, "Timestamp", xmpInteger},
};

template <std::size_t count>
void readFields(const XmpValue* structure, const FieldRow (&rows)[count],
                model::Dictionary& fields) {
  if (!structure) return;
  for (const FieldRow& row : rows) {
    const XmpValue* field = structure->field(row.name);
    auto value = field ? row.convert(*field) : std::nullopt;
    if (value) fields.insert_or_assign(std::string(row.key), *std::move(value));
  }
}

const XmpValue* mwgField(const XmpValue& structure, std::string_view name) {
  return structure.field({XmpNamespace::mwgRegions, name});
}

model::Dictionary readRegion(const XmpValue& region) {
  model::Dictionary fields;
  readFields(mwgField(region, "Area"), areaFields, fields);
  readFields(&region, regionFields, fields);
  readFields(&region, faceFields, fields);
  readFields(mwgField(region, "Extensions"), faceFields, fields);
  return fields;
}

}  // namespace

std::optional<model::Value> xmpRegions(const XmpValue& regions) {
  model::Dictionary shown;
  readFields(mwgField(regions, "AppliedToDimensions"), dimensionFields, shown);
  const XmpValue* list = mwgField(regions, "RegionList");
  model::Array shownList;
  if (list) {
    for (const XmpValue& region : list->items) {
      model::Dictionary fields = readRegion(region);
      if (!fields.empty()) shownList.emplace_back(std::move(fields));
    }
  }
  if (shownList.empty()) return std::nullopt;
  shown.insert_or_assign("RegionList", std::move(shownList));
  return model::Value(std::move(shown));
}

}  // namespace media::image
