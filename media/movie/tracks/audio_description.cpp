// SPDX-License-Identifier: MIT
//
// The code of a sample entry says how the sound is coded, but its fixed fields are often wrong for
// compressed sound (phones write two channels for one): what the codec's own configuration says
// wins. Linear samples come under many codes; the platform calls all of them 'lpcm'.
#include "media/movie/tracks/audio_description.h"

#include <cmath>

#include "media/movie/tracks/elementary_stream.h"
#include "media/movie/tracks/linear_sound.h"
#include "media/movie/tracks/sound_fields.h"

namespace media::movie {

namespace {

using model::AudioStreamDescription;
using model::FourCharCode;
using model::fourCharCode;

using io::ByteOrder::big;

constexpr FourCharCode mpegLayer3 = fourCharCode(".mp3");

// Codes of compressed sound: what the platform calls them, and the frames of a packet and the
// channels where the codec fixes them (0 where it does not).
struct Codec {
  FourCharCode code;
  FourCharCode formatID;
  std::uint32_t framesPerPacket;
  std::uint32_t channels = 0;
};

constexpr Codec codecs[] = {
    {fourCharCode("samr"), fourCharCode("samr"), 160, 1},  // 3GPP TS 26.244: 20 ms at 8 kHz
    {fourCharCode("sawb"), fourCharCode("sawb"), 320, 1},  // 20 ms at 16 kHz
    {fourCharCode(".mp3"), mpegLayer3, 1152},              //
    {0x6D730055, mpegLayer3, 1152},                        // 'ms' and the code of WAVE files
    {fourCharCode("ac-3"), fourCharCode("ac-3"), 1536},    // ETSI TS 102 366
    {fourCharCode("sac3"), fourCharCode("ac-3"), 1536},    //
    {fourCharCode("ec-3"), fourCharCode("ec-3"), 1536},    //
    {fourCharCode("ima4"), fourCharCode("ima4"), 64},      // QuickTime File Format
    {fourCharCode("ulaw"), fourCharCode("ulaw"), 1},       //
    {fourCharCode("alaw"), fourCharCode("alaw"), 1},       //
    {fourCharCode("Opus"), fourCharCode("opus"), 0},       //
    {fourCharCode("fLaC"), fourCharCode("flac"), 0},       //
};

// MPEG-4 object types of sound (ISO/IEC 14496-1, table 5, and the registration authority).
struct ObjectType {
  std::uint8_t code;
  FourCharCode formatID;
};

constexpr ObjectType objectTypes[] = {
    {0x40, fourCharCode("aac ")}, {0x66, fourCharCode("aac ")}, {0x67, fourCharCode("aac ")},
    {0x68, fourCharCode("aac ")}, {0x69, mpegLayer3},           {0x6B, mpegLayer3},
    {0xA5, fourCharCode("ac-3")}, {0xA6, fourCharCode("ec-3")}, {0xE1, fourCharCode("Qclp")},
};

// A box of the codec's: in the entry, or in the "wave" box that QuickTime puts it into.
std::optional<io::ByteView> codecBox(const SoundFields& fields, FourCharCode type) {
  if (const auto payload = findPayload(fields.boxes, type)) return payload;
  const auto wave = findPayload(fields.boxes, fourCharCode("wave"));
  return wave ? findPayload(*wave, type) : std::nullopt;
}

FourCharCode formatOfAac(const AacConfiguration& aac) {
  if (aac.hasParametricStereo) return fourCharCode("aacp");
  if (aac.hasBandReplication) return fourCharCode("aach");
  if (aac.objectType == 23) return fourCharCode("aacl");
  if (aac.objectType == 39) return fourCharCode("aace");
  return fourCharCode("aac ");
}

void takeAac(AudioStreamDescription& audio, io::ByteView configuration) {
  audio.framesPerPacket = 1024;
  const auto aac = parseAacConfiguration(configuration);
  if (!aac) return;
  audio.formatID = formatOfAac(*aac);
  audio.framesPerPacket = aac->framesPerPacket;
  if (aac->sampleRate != 0) audio.sampleRate = aac->sampleRate;
  if (aac->channels != 0) audio.channelsPerFrame = aac->channels;
}

// 'mp4a' stands for every kind of sound that MPEG-4 systems know.
void takeElementaryStream(AudioStreamDescription& audio, const SoundFields& fields) {
  audio.formatID = fourCharCode("aac ");
  const auto box = codecBox(fields, fourCharCode("esds"));
  const auto stream = box ? parseElementaryStream(*box) : std::nullopt;
  for (const ObjectType& type : objectTypes) {
    if (stream && type.code == stream->objectType) audio.formatID = type.formatID;
  }
  if (audio.formatID == fourCharCode("aac "))
    takeAac(audio, stream ? stream->configuration : io::ByteView());
  else if (audio.formatID != fourCharCode("Qclp"))
    audio.framesPerPacket = audio.formatID == mpegLayer3 ? 1152 : 1536;
}

// The magic cookie of Apple Lossless; its flags tell the depth of the source.
void takeLossless(AudioStreamDescription& audio, const SoundFields& fields) {
  audio.formatID = fourCharCode("alac");
  audio.framesPerPacket = 4096;
  const auto box = codecBox(fields, fourCharCode("alac"));
  const io::ByteView cookie = box ? box->from(4) : io::ByteView();
  if (cookie.size() < 24) return;
  audio.framesPerPacket = cookie.u32(0, big).value_or(0);
  audio.channelsPerFrame = cookie.u8(9).value_or(0);
  audio.sampleRate = cookie.u32(20, big).value_or(0);
  constexpr std::uint8_t depths[] = {16, 20, 24, 32};  // flags 1 to 4
  for (std::uint32_t index = 0; index < std::size(depths); ++index) {
    if (cookie.u8(5) == depths[index]) audio.formatFlags = index + 1;
  }
}

// Adaptive codecs state their packets in a version 1 description; the simplest are known.
void takePackets(AudioStreamDescription& audio, const SoundFields& fields) {
  constexpr std::uint32_t ima4BytesPerChannel = 34;
  if (fields.version == 1 && !fields.isVariable && fields.framesPerPacket != 0) {
    audio.framesPerPacket = fields.framesPerPacket;
    audio.bytesPerPacket = fields.bytesPerPacket;
  } else if (audio.formatID == fourCharCode("ima4")) {
    audio.bytesPerPacket = ima4BytesPerChannel * audio.channelsPerFrame;
  }
  if (audio.formatID == fourCharCode("ulaw") || audio.formatID == fourCharCode("alaw")) {
    audio.bitsPerChannel = 8;
    audio.bytesPerPacket = audio.channelsPerFrame;
    audio.bytesPerFrame = audio.channelsPerFrame;
  }
}

void takeCodec(AudioStreamDescription& audio, FourCharCode code, const SoundFields& fields) {
  audio.formatID = code;
  for (const Codec& codec : codecs) {
    if (codec.code != code) continue;
    audio.formatID = codec.formatID;
    audio.framesPerPacket = codec.framesPerPacket;
    if (codec.channels != 0) audio.channelsPerFrame = codec.channels;
  }
  if (fields.version == 2) audio.framesPerPacket = fields.framesPerPacket;
  takePackets(audio, fields);
}

AudioStreamDescription streamDescription(const SampleEntry& entry) {
  const SoundFields fields = parseSoundFields(entry);
  if (const auto linear = linearSound(entry.box.type, fields)) return *linear;
  AudioStreamDescription audio;
  audio.sampleRate = std::isfinite(fields.sampleRate) ? fields.sampleRate : 0;
  audio.channelsPerFrame = fields.channels;
  if (entry.box.type == fourCharCode("mp4a")) {
    takeElementaryStream(audio, fields);
  } else if (entry.box.type == fourCharCode("alac")) {
    takeLossless(audio, fields);
  } else {
    takeCodec(audio, entry.box.type, fields);
  }
  if (audio.formatID == mpegLayer3 && audio.sampleRate < 32000) audio.framesPerPacket = 576;
  return audio;
}

}  // namespace

model::FormatDescription audioDescription(const SampleEntry& entry) {
  model::FormatDescription description;
  description.mediaType = entry.mediaType;
  description.audio = streamDescription(entry);
  description.mediaSubType = description.audio->formatID;
  setVerbatimEntry(description.extensions, entry);
  return description;
}

}  // namespace media::movie
