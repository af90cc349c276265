// SPDX-License-Identifier: MIT
#include "tests/lumifact/details/fake_media.h"

#include "bridge/convert.h"
#include "bridge/convert_media.h"
#include "bridge/imageio.h"
#include "tests/bridge/victims.h"

namespace lumifact::host {
namespace {

using bridge::NSString;
using bridge::Object;
using bridge::Owned;

// An item of metadata is a dictionary that answers for its entries.
id entry(id self, const char* key) {
  return bridge::objectField(Object(self), key).get();
}

id makeItem(const std::string& key, const std::string& value) {
  static const Class made = victims::ClassMaker("AVMetadataItem")
                                .field("key", "@")
                                .field("text", "@")
                                .method(
                                    "commonKey", +[](id self, SEL) { return entry(self, "key"); })
                                .method(
                                    "value", +[](id self, SEL) { return entry(self, "text"); })
                                .build();
  Owned<Object> item = victims::make(made);
  victims::setField(item, "key", NSString::make(key).get());
  victims::setField(item, "text", NSString::make(value).get());
  return item.autorelease().get();
}

id commonMetadata(id, SEL) {
  const auto items = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& [key, value] : fakeMedia().videoMetadata)
    items->add(Object(makeItem(key, value)));
  return Owned<bridge::NSMutableArray>(items).autorelease().get();
}

void registerVideos() {
  victims::ClassMaker("AVURLAsset")
      .classMethod(
          "URLAssetWithURL:options:",
          +[](id self, SEL, id url, id) {
            fakeMedia().tried.push_back("video " + bridge::NSURL(url).absoluteString().utf8());
            return victims::make(reinterpret_cast<Class>(self)).autorelease().get();
          })
      .method(
          "tracks", +[](id, SEL) { return static_cast<id>(nullptr); })
      .method("commonMetadata", &commonMetadata)
      .build();
}

}  // namespace

FakeMedia& fakeMedia() {
  static auto& kept = []() -> FakeMedia& {
    registerVideos();
    return *new FakeMedia;
  }();
  return kept;
}

}  // namespace lumifact::host

using lumifact::host::fakeMedia;

// A source is the text of its link.
CGImageSourceRef CGImageSourceCreateWithURL(CFURLRef url, CFDictionaryRef) {
  const bridge::NSURL link(reinterpret_cast<id>(const_cast<CFURL*>(url)));
  const std::string text = link.absoluteString().utf8();
  fakeMedia().tried.push_back(text);
  if (!fakeMedia().files.contains(text)) return nullptr;
  return reinterpret_cast<CGImageSourceRef>(
      bridge::Owned<bridge::NSString>::retain(bridge::NSString::make(text)).detach().get());
}

CFDictionaryRef CGImageSourceCopyPropertiesAtIndex(CGImageSourceRef source, std::size_t index,
                                                   CFDictionaryRef) {
  const auto& file = fakeMedia().files.at(bridge::NSString(reinterpret_cast<id>(source)).utf8());
  if (!file || index != 0) return nullptr;
  return reinterpret_cast<CFDictionaryRef>(bridge::toObject(*file).detach().get());
}

// No video has a track.
std::uint32_t CMFormatDescriptionGetMediaType(CMFormatDescriptionRef) {
  return 0;
}
std::uint32_t CMFormatDescriptionGetMediaSubType(CMFormatDescriptionRef) {
  return 0;
}
CMVideoDimensions CMVideoFormatDescriptionGetDimensions(CMFormatDescriptionRef) {
  return {};
}
const AudioStreamBasicDescription* CMAudioFormatDescriptionGetStreamBasicDescription(
    CMFormatDescriptionRef) {
  return nullptr;
}
CFDictionaryRef CMFormatDescriptionGetExtensions(CMFormatDescriptionRef) {
  return nullptr;
}
double CMTimeGetSeconds(CMTime) {
  return 0;
}
