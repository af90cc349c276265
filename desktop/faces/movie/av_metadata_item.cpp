// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/av_metadata_item.h"

#include "bridge/class_builder.h"
#include "bridge/convert.h"
#include "desktop/platform.h"

namespace desktop::faces {

Class AVMetadataItemState::classObject() {
  static const Class made = ClassBuilder<AVMetadataItemState>("AVMetadataItem")
                                .method<"commonKey", &AVMetadataItemState::commonKey>()
                                .method<"value", &AVMetadataItemState::value>()
                                .build();
  return made;
}

Owned<NSObject> AVMetadataItemState::make(const model::MetadataItem& item) {
  auto made = makeNew<NSObject>(classObject());
  if (!made) return made;
  AVMetadataItemState& state = of(made->get());
  if (item.commonKey) state._commonKey = Owned<NSString>::retain(NSString::make(*item.commonKey));
  if (item.value) state._value = toObject(*item.value);
  return made;
}

Owned<NSArray> AVMetadataItemState::makeAll(const std::vector<model::MetadataItem>& items) {
  const auto array = makeNew<NSMutableArray>();
  for (const model::MetadataItem& item : items) array->add(make(item));
  return Owned<NSArray>::retain(array);
}

}  // namespace desktop::faces
