// SPDX-License-Identifier: MIT
//
// An entry is fixed fields, then boxes. QuickTime and ISO files differ in both: versions of the
// sound entry, lists of atoms with an end of four zero bytes, names of colours. Each function
// writes one kind of entry for both, and asks which of the two it is where they part.
#include "samples/movies/sample_descriptions.h"

#include <bit>

#include "samples/coding/sound_encoder.h"
#include "samples/formats/box_writer.h"

namespace samples {

namespace {

void beginEntry(BoxWriter& out, std::string_view type) {
  out.begin(type);
  out.zeros(6);
  out.u16(1);  // the first data reference: this file
}

// A text of a fixed field, its length first.
void writePascalText(ByteWriter& out, std::string_view text, std::size_t fieldSize) {
  out.u8(text.size());
  out.text(text);
  out.zeros(fieldSize - 1 - text.size());
}

void writeColors(BoxWriter& out, bool quickTime) {
  out.begin("colr");
  out.text(quickTime ? "nclc" : "nclx");
  for (int part = 0; part < 3; ++part) out.u16(1);  // Rec. 709
  if (!quickTime) out.u8(0);                        // not full range
  out.end();
}

// Square pixels, and the whole frame is clean.
void writeShape(BoxWriter& out, int width, int height) {
  out.begin("pasp");
  out.u32(1);
  out.u32(1);
  out.end();
  out.begin("clap");
  for (const int part : {width, 1, height, 1, 0, 1, 0, 1}) out.u32(part);
  out.end();
}

// A descriptor of MPEG-4 systems: tag, length in four bytes, content.
Bytes descriptor(int tag, const Bytes& content) {
  ByteWriter out;
  out.u8(tag);
  out.u32(0x80808000 | content.size());
  out.append(content);
  return out.take();
}

// The box that carries the decoder's configuration.
void writeElementaryStream(BoxWriter& out, const Bytes& configuration) {
  ByteWriter decoder;
  decoder.u8(0x40);  // MPEG-4 audio
  decoder.u8(0x15);
  for (const int part : {0x00, 0x18, 0x00}) decoder.u8(part);  // buffer of 6,144 bytes
  decoder.u32(96000);
  decoder.u32(64000);
  decoder.append(descriptor(5, configuration));
  ByteWriter stream;
  stream.zeros(3);
  stream.append(descriptor(4, decoder.bytes()));
  stream.append(descriptor(6, {2}));
  out.begin("esds", 0);
  out.append(descriptor(3, stream.bytes()));
  out.end();
}

void writeMonoLayout(BoxWriter& out) {
  out.begin("chan", 0);
  out.u32(0x00640001);
  out.u32(0);
  out.u32(0);
  out.end();
}

// The four-byte end of a list of QuickTime atoms.
void writeTerminator(ByteWriter& out) {
  out.u32(0);
}

}  // namespace

Bytes videoDescription(const Movie& movie, const Bytes& configuration) {
  const bool quickTime = movie.brand == MovieBrand::quickTime;
  const bool hevc = movie.codec == VideoCodec::hevc;
  BoxWriter out;
  beginEntry(out, hevc ? "hvc1" : "avc1");
  out.zeros(8);                  // version, revision, vendor
  out.u32(quickTime ? 512 : 0);  // temporal quality
  out.u32(quickTime ? 512 : 0);  // spatial quality
  out.u16(movie.width);
  out.u16(movie.height);
  out.u32(0x00480000);  // 72 dots an inch
  out.u32(0x00480000);
  out.u32(0);
  out.u16(1);  // frames in a sample
  writePascalText(out, quickTime ? (hevc ? "HEVC" : "H.264") : "", 32);
  out.u16(24);
  out.u16(-1);  // no colour table
  out.begin(hevc ? "hvcC" : "avcC");
  out.append(configuration);
  out.end();
  if (movie.brand != MovieBrand::android) writeColors(out, quickTime);
  if (movie.livePhoto != nullptr) writeShape(out, movie.width, movie.height);
  if (quickTime) writeTerminator(out);
  out.end();
  return out.take();
}

Bytes aacDescription(MovieBrand brand, const Bytes& configuration) {
  const bool quickTime = brand == MovieBrand::quickTime;
  BoxWriter out;
  beginEntry(out, "mp4a");
  out.u16(quickTime ? 1 : 0);  // version
  out.zeros(6);
  out.u16(1);   // channels
  out.u16(16);  // bits, were it not compressed
  out.u16(quickTime ? -2 : 0);
  out.u16(0);
  out.u32(std::uint32_t{soundRate} << 16);
  if (!quickTime) {
    writeElementaryStream(out, configuration);
    out.end();
    return out.take();
  }
  out.u32(samplesPerPacket);
  for (int part = 0; part < 3; ++part) out.u32(2);
  writeMonoLayout(out);
  out.begin("wave");
  out.begin("frma");
  out.text("mp4a");
  out.end();
  out.begin("mp4a", 0);
  out.end();
  writeElementaryStream(out, configuration);
  out.u32(8);
  writeTerminator(out);
  out.end();
  out.end();
  return out.take();
}

Bytes linearPcmDescription() {
  BoxWriter out;
  beginEntry(out, "lpcm");
  out.u16(2);  // version
  out.zeros(6);
  out.u16(3);  // these five are the same for every version 2 description
  out.u16(16);
  out.u16(-2);
  out.u16(0);
  out.u32(65536);
  out.u32(72);  // size of the description up to its extensions
  out.u64(std::bit_cast<std::uint64_t>(double{soundRate}));
  out.u32(1);  // channels
  out.u32(0x7F000000);
  out.u32(16);  // bits of a channel
  out.u32(12);  // signed, packed
  out.u32(2);   // bytes of a packet
  out.u32(1);   // frames of a packet
  writeMonoLayout(out);
  out.end();
  return out.take();
}

Bytes amrDescription() {
  BoxWriter out;
  beginEntry(out, "samr");
  out.zeros(8);  // version, revision, vendor
  out.u16(2);    // channels
  out.u16(16);   // bits, were it not compressed
  out.u32(0);
  out.u32(std::uint32_t{8000} << 16);
  out.begin("damr");
  out.text("SMPL");
  out.u8(0);        // version of the encoder
  out.u16(0x81FF);  // all modes
  out.u8(0);
  out.u8(1);  // frames of a sample
  out.end();
  out.end();
  return out.take();
}

Bytes timedMetadataDescription(std::string_view key, std::uint32_t dataType) {
  BoxWriter out;
  beginEntry(out, "mebx");
  out.begin("keys");
  out.begin(std::string_view("\0\0\0\1", 4));  // the key's number in samples
  out.begin("keyd");
  out.text("mdta");
  out.text(key);
  out.end();
  out.begin("dtyp");
  out.u32(0);
  out.u32(dataType);
  out.end();
  out.end();
  out.end();
  out.end();
  return out.take();
}

}  // namespace samples
