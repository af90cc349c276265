// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/format_description.h"

#include "bridge/class_builder.h"
#include "bridge/convert.h"
#include "desktop/platform.h"

namespace desktop::faces {

namespace {

AudioStreamBasicDescription streamDescription(const model::AudioStreamDescription& audio) {
  return {.mSampleRate = audio.sampleRate,
          .mFormatID = audio.formatID,
          .mFormatFlags = audio.formatFlags,
          .mBytesPerPacket = audio.bytesPerPacket,
          .mFramesPerPacket = audio.framesPerPacket,
          .mBytesPerFrame = audio.bytesPerFrame,
          .mChannelsPerFrame = audio.channelsPerFrame,
          .mBitsPerChannel = audio.bitsPerChannel};
}

}  // namespace

Class FormatDescription::classObject() {
  static const Class made = ClassBuilder<FormatDescription>("DesktopFormatDescription").build();
  return made;
}

Owned<NSObject> FormatDescription::make(const model::FormatDescription& facts) {
  auto made = makeNew<NSObject>(classObject());
  if (!made) return made;
  FormatDescription& description = of(made->get());
  if (facts.audio) description.audio = streamDescription(*facts.audio);
  if (!facts.extensions.empty()) {
    description.extensions = toObject(model::Value(facts.extensions));
  }
  description.facts = facts;
  description.facts.extensions.clear();
  return made;
}

}  // namespace desktop::faces

namespace {

const desktop::faces::FormatDescription& stateOf(CMFormatDescriptionRef description) {
  return desktop::faces::FormatDescription::of(
      reinterpret_cast<id>(const_cast<CMFormatDescription*>(description)));
}

}  // namespace

std::uint32_t CMFormatDescriptionGetMediaType(CMFormatDescriptionRef description) {
  return stateOf(description).facts.mediaType;
}

std::uint32_t CMFormatDescriptionGetMediaSubType(CMFormatDescriptionRef description) {
  return stateOf(description).facts.mediaSubType;
}

CMVideoDimensions CMVideoFormatDescriptionGetDimensions(CMFormatDescriptionRef description) {
  const model::FormatDescription& facts = stateOf(description).facts;
  return {.width = facts.width, .height = facts.height};
}

const AudioStreamBasicDescription* CMAudioFormatDescriptionGetStreamBasicDescription(
    CMFormatDescriptionRef description) {
  const auto& state = stateOf(description);
  return state.facts.audio ? &state.audio : nullptr;
}

CFDictionaryRef CMFormatDescriptionGetExtensions(CMFormatDescriptionRef description) {
  return reinterpret_cast<CFDictionaryRef>(stateOf(description).extensions.get().get());
}
