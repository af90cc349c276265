// SPDX-License-Identifier: MIT
//
// Image sources: the C functions of ImageIO, and who owns what they give.
#pragma once

#include <memory>

#include "bridge/corefoundation.h"
#include "bridge/foundation.h"

using CGImageSourceRef = struct CGImageSource*;
using CFURLRef = const struct CFURL*;

#pragma GCC visibility push(default)
extern "C" {
// +1, or null where the file cannot be opened; of any type of file, images or not.
CGImageSourceRef CGImageSourceCreateWithURL(CFURLRef url, CFDictionaryRef options);
// +1, or null where there is no such image.
CFDictionaryRef CGImageSourceCopyPropertiesAtIndex(CGImageSourceRef source, std::size_t index,
                                                   CFDictionaryRef options);
}
#pragma GCC visibility pop

namespace bridge {

struct ReleaseImageSource {
  void operator()(CGImageSourceRef source) const { CFRelease(source); }
};
using ImageSource = std::unique_ptr<CGImageSource, ReleaseImageSource>;

// An open image source; null where the file cannot be opened, and of nil.
inline ImageSource openImageSource(NSURL url) {
  if (!url) return {};
  return ImageSource(CGImageSourceCreateWithURL(reinterpret_cast<CFURLRef>(url.get()), nullptr));
}

// The properties of the first image; nil where the file is none.
inline Owned<NSDictionary> copyImageProperties(const ImageSource& source) {
  if (!source) return {};
  CFDictionaryRef properties = CGImageSourceCopyPropertiesAtIndex(source.get(), 0, nullptr);
  return Owned<NSDictionary>::adopt(
      NSDictionary(reinterpret_cast<id>(const_cast<CFDictionary*>(properties))));
}

}  // namespace bridge
