// SPDX-License-Identifier: MIT
//
// The platform's C functions that an extension is bound to when it is mapped, in a host that never
// opens an image or a video. Where a test's platform has the real ones, these give way.
#include "bridge/avfoundation.h"
#include "bridge/coregraphics.h"
#include "bridge/imageio.h"

#define GIVES_WAY __attribute__((weak))  // of no meaning outside a declaration, so no function

GIVES_WAY CGImageSourceRef CGImageSourceCreateWithURL(CFURLRef, CFDictionaryRef) {
  return nullptr;
}
GIVES_WAY CFDictionaryRef CGImageSourceCopyPropertiesAtIndex(CGImageSourceRef, std::size_t,
                                                             CFDictionaryRef) {
  return nullptr;
}

GIVES_WAY std::uint32_t CMFormatDescriptionGetMediaType(CMFormatDescriptionRef) {
  return 0;
}
GIVES_WAY std::uint32_t CMFormatDescriptionGetMediaSubType(CMFormatDescriptionRef) {
  return 0;
}
GIVES_WAY CMVideoDimensions CMVideoFormatDescriptionGetDimensions(CMFormatDescriptionRef) {
  return {};
}
GIVES_WAY const AudioStreamBasicDescription* CMAudioFormatDescriptionGetStreamBasicDescription(
    CMFormatDescriptionRef) {
  return nullptr;
}
GIVES_WAY CFDictionaryRef CMFormatDescriptionGetExtensions(CMFormatDescriptionRef) {
  return nullptr;
}
GIVES_WAY double CMTimeGetSeconds(CMTime) {
  return 0;
}

GIVES_WAY void UIGraphicsBeginImageContext(CGSize) {}
GIVES_WAY CGContextRef UIGraphicsGetCurrentContext() {
  return nullptr;
}
GIVES_WAY id UIGraphicsGetImageFromCurrentImageContext() {
  return nullptr;
}
GIVES_WAY void UIGraphicsEndImageContext() {}
GIVES_WAY void CGContextSetFillColorWithColor(CGContextRef, CGColorRef) {}
GIVES_WAY void CGContextFillRect(CGContextRef, CGRect) {}
