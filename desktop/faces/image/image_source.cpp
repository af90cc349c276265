// SPDX-License-Identifier: MIT
//
// The C functions of Image I/O over the plain reader. A source is an object of the runtime, so that
// it is retained and released like any other.
#include "media/image/image_source.h"

#include "bridge/class_builder.h"
#include "bridge/convert.h"
#include "bridge/imageio.h"
#include "desktop/faces/foundation/file_links.h"
#include "desktop/platform.h"
#include "io/byte_source.h"

namespace desktop::faces {
namespace {

class SourceObject : public Bound<SourceObject, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made = ClassBuilder<SourceObject>("DesktopImageSource").build();
    return made;
  }

  std::unique_ptr<io::FileSource> file;
};

CGImageSourceRef open(NSURL link) {
  const auto path = fileOnDisk(link);
  if (!path) return nullptr;
  auto file = io::FileSource::open(*path);
  if (!file) return nullptr;
  auto source = makeNew<NSObject>(SourceObject::classObject());
  if (source) SourceObject::of(source.get()).file = *std::move(file);
  return reinterpret_cast<CGImageSourceRef>(source.detach().get());
}

CFDictionaryRef copyFirstProperties(CGImageSourceRef source) {
  const auto properties =
      media::image::copyProperties(*SourceObject::of(reinterpret_cast<id>(source)).file);
  if (!properties || !*properties) return nullptr;
  const model::Value tree(**properties);
  return reinterpret_cast<CFDictionaryRef>(toObject(tree).detach().get());
}

}  // namespace
}  // namespace desktop::faces

CGImageSourceRef CGImageSourceCreateWithURL(CFURLRef url, CFDictionaryRef) {
  const bridge::NSURL link(reinterpret_cast<id>(const_cast<CFURL*>(url)));
  return bridge::guarded([&] { return desktop::faces::open(link); });
}

// Only the first image of a file is read.
CFDictionaryRef CGImageSourceCopyPropertiesAtIndex(CGImageSourceRef source, std::size_t index,
                                                   CFDictionaryRef) {
  if (source == nullptr || index != 0) return nullptr;
  return bridge::guarded([&] { return desktop::faces::copyFirstProperties(source); });
}
