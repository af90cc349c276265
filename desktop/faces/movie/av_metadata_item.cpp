// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/av_metadata_item.h"

#include "bridge/class_builder.h"
#include "bridge/convert.h"

namespace desktop::faces {

using bridge::NSArray;
using bridge::NSObject;
using bridge::NSString;
using bridge::Owned;

Class AVMetadataItem::classObject() {
  static const Class made = bridge::ClassBuilder<AVMetadataItem>("AVMetadataItem")
                                .method<"commonKey", &AVMetadataItem::commonKey>()
                                .method<"value", &AVMetadataItem::value>()
                                .build();
  return made;
}

Owned<NSObject> AVMetadataItem::make(const model::MetadataItem& item) {
  auto made = Owned<NSObject>::adopt(bridge::send<NSObject, "new">(classObject()));
  if (!made) return made;
  AVMetadataItem& state = of(made->get());
  if (item.commonKey) state._commonKey = Owned<NSString>::retain(NSString::make(*item.commonKey));
  if (item.value) state._value = bridge::toObject(*item.value);
  return made;
}

Owned<NSArray> AVMetadataItem::makeAll(const std::vector<model::MetadataItem>& items) {
  const auto array = bridge::makeNew<bridge::NSMutableArray>();
  for (const model::MetadataItem& item : items) array->add(make(item));
  return Owned<NSArray>::retain(array);
}

}  // namespace desktop::faces
