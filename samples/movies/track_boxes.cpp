// SPDX-License-Identifier: MIT
//
// "trak" from the outside in: header, edit list, media with its handlers, and the sample table at
// the bottom. QuickTime has boxes that ISO files do not know (apertures, a second handler, "gmin");
// they are written for its files alone.
#include "samples/movies/track_boxes.h"

#include <array>
#include <string>

namespace samples {

namespace {

struct KindNames {
  std::string_view handler;
  std::string_view quickTimeName;
  std::string_view isoName;
};

const KindNames& namesOf(TrackKind kind) {
  static constexpr KindNames names[] = {{"vide", "Core Media Video", "VideoHandler"},
                                        {"soun", "Core Media Audio", "SoundHandler"},
                                        {"meta", "Core Media Metadata", "MetaHandler"},
                                        {"pict", "Core Media Picture", "PictureHandler"}};
  return names[static_cast<std::size_t>(kind)];
}

// The matrix that turns a frame clockwise and moves it back into view; a to v are 16.16 numbers
// but for the last column, which is 2.30.
std::array<std::int32_t, 9> rotationMatrix(const MovieTrack& track) {
  constexpr std::int32_t one = 0x10000;
  const std::int32_t width = track.width * one;
  const std::int32_t height = track.height * one;
  constexpr std::int32_t last = 0x40000000;
  switch (track.rotation) {
    case 90:
      return {0, one, 0, -one, 0, 0, height, 0, last};
    case 180:
      return {-one, 0, 0, 0, -one, 0, width, height, last};
    case 270:
      return {0, -one, 0, one, 0, 0, 0, width, last};
    default:
      return {one, 0, 0, 0, one, 0, 0, 0, last};
  }
}

void writeTrackHeader(BoxWriter& out, const MovieTrack& track, const TrackContext& context) {
  out.begin("tkhd", context.quickTime ? 0x0F : 0x03);
  out.u32(context.created);
  out.u32(context.created);
  out.u32(context.number);
  out.u32(0);
  out.u32(trackDuration(track, context.movieTimeScale));
  out.zeros(8);
  out.u16(0);  // layer
  out.u16(0);  // alternate group
  out.u16(track.kind == TrackKind::sound ? 0x0100 : 0);
  out.u16(0);
  for (const std::int32_t part : rotationMatrix(track)) out.u32(part);
  out.u32(track.width << 16);
  out.u32(track.height << 16);
  out.end();
}

// Clean, production and encoded dimensions.
void writeApertures(BoxWriter& out, const MovieTrack& track) {
  out.begin("tapt");
  for (const std::string_view type : {"clef", "prof", "enof"}) {
    out.begin(type, 0);
    out.u32(track.width << 16);
    out.u32(track.height << 16);
    out.end();
  }
  out.end();
}

void writeEditList(BoxWriter& out, const MovieTrack& track, const TrackContext& context) {
  out.begin("edts");
  out.begin("elst", 0);
  out.u32(1);
  out.u32(trackDuration(track, context.movieTimeScale));
  out.u32(track.mediaStart);
  out.u32(0x10000);
  out.end();
  out.end();
}

void writeHandler(BoxWriter& out, std::string_view group, std::string_view type,
                  std::string_view name, bool timedMetadata) {
  out.begin("hdlr", 0);
  out.text(group);
  out.text(type);
  out.text("appl");
  out.u32(timedMetadata ? 1 : 0);
  out.u32(0);
  out.u8(name.size());
  out.text(name);
  out.end();
}

void writeMediaHandler(BoxWriter& out, const MovieTrack& track, const TrackContext& context) {
  const KindNames& names = namesOf(track.kind);
  if (context.quickTime) {
    writeHandler(out, "mhlr", names.handler, names.quickTimeName,
                 track.kind == TrackKind::metadata);
    return;
  }
  out.begin("hdlr", 0);
  out.u32(0);
  out.text(names.handler);
  out.zeros(12);
  out.text(names.isoName);
  out.u8(0);
  out.end();
}

void writeGraphics(ByteWriter& out, bool quickTime) {
  out.u16(quickTime ? 0x40 : 0);  // dither copy
  for (int part = 0; part < 3; ++part) out.u16(quickTime ? 0x8000 : 0);
}

void writeMediaKind(BoxWriter& out, const MovieTrack& track, bool quickTime) {
  switch (track.kind) {
    case TrackKind::video:
    case TrackKind::images:
      out.begin("vmhd", 1);
      writeGraphics(out, quickTime);
      out.end();
      break;
    case TrackKind::sound:
      out.begin("smhd", 0);
      out.u32(0);
      out.end();
      break;
    case TrackKind::metadata:
      out.begin("gmhd");
      out.begin("gmin", 0);
      writeGraphics(out, true);
      out.u32(0);
      out.end();
      out.end();
      break;
  }
}

// The data are in this file.
void writeDataReference(BoxWriter& out, bool quickTime) {
  if (quickTime) writeHandler(out, "dhlr", "alis", "Core Media Data Handler", false);
  out.begin("dinf");
  out.begin("dref", 0);
  out.u32(1);
  out.begin(quickTime ? "alis" : "url ", 1);
  out.end();
  out.end();
  out.end();
}

void writeReferences(BoxWriter& out, const MovieTrack& track, const TrackContext& context) {
  if (track.kind != TrackKind::metadata) return;
  out.begin("tref");
  out.begin("cdsc");
  out.u32(context.describedTrack);
  out.end();
  out.end();
}

}  // namespace

std::uint64_t trackDuration(const MovieTrack& track, std::uint32_t movieTimeScale) {
  return (mediaDuration(track) - track.mediaStart) * movieTimeScale / track.timeScale;
}

void writeTrack(BoxWriter& out, const MovieTrack& track, const TrackContext& context,
                const std::vector<Chunk>& chunks, const std::vector<std::uint64_t>& offsets) {
  out.begin("trak");
  writeTrackHeader(out, track, context);
  if (track.kind == TrackKind::video && context.quickTime) writeApertures(out, track);
  writeEditList(out, track, context);
  writeReferences(out, track, context);
  out.begin("mdia");
  out.begin("mdhd", 0);
  out.u32(context.created);
  out.u32(context.created);
  out.u32(track.timeScale);
  out.u32(mediaDuration(track));
  out.u16(0x55C4);  // language not determined
  out.u16(0);
  out.end();
  writeMediaHandler(out, track, context);
  out.begin("minf");
  writeMediaKind(out, track, context.quickTime);
  writeDataReference(out, context.quickTime);
  writeSampleTable(out, track, chunks, offsets);
  out.end();
  out.end();
  out.end();
}

}  // namespace samples
