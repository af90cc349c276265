// SPDX-License-Identifier: MIT
#include "tests/support/movie_builder.h"

#include <bit>

namespace media::movie {

namespace {

Bytes zeros(std::size_t count) {
  return Bytes(count, 0);
}

// A sequence parameter set of 1920 x 1080, High profile, without usability information.
const Bytes plainAvcConfiguration = {0x01, 0x64, 0x00, 0x28, 0xFF, 0xE1, 0x00, 0x0B, 0x67,
                                     0x64, 0x00, 0x28, 0xAC, 0xD9, 0x40, 0x78, 0x02, 0x27,
                                     0xE5, 0x01, 0x00, 0x04, 0x68, 0xEB, 0xE3, 0xCB};

Bytes colourBox() {
  return box("colr", Writer().text("nclc").u16(1).u16(1).u16(1));
}

Bytes aacEntry(std::uint16_t channels, std::uint32_t rate, const Bytes& configuration) {
  return soundEntry("mp4a", channels, 16, rate, elementaryStreamBox(0x40, configuration));
}

Bytes boxedMetadataEntry() {
  const Bytes key = joined({box("keyd", Writer().text("mdtacom.apple.quicktime.video-orientation")),
                            box("dtyp", Writer().u32(0).u32(66))});
  const Bytes local = joined({Writer().u32(8 + key.size()).u32(1), key});
  return box("mebx", {Writer().zeros(6).u16(1), box("keys", local)});
}

}  // namespace

Writer& Writer::text(std::string_view text) {
  _bytes.insert(_bytes.end(), text.begin(), text.end());
  return *this;
}

Writer& Writer::zeros(std::size_t count) {
  _bytes.insert(_bytes.end(), count, 0);
  return *this;
}

Writer& Writer::bytes(const Bytes& bytes) {
  _bytes.insert(_bytes.end(), bytes.begin(), bytes.end());
  return *this;
}

Writer& Writer::number(std::uint64_t value, int size) {
  for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
    _bytes.push_back(static_cast<std::uint8_t>(value >> shift));
  return *this;
}

Bytes joined(std::initializer_list<Bytes> parts) {
  Writer writer;
  for (const Bytes& part : parts) writer.bytes(part);
  return writer;
}

Bytes box(std::string_view type, const Bytes& payload) {
  return Writer().u32(8 + payload.size()).text(type).bytes(payload);
}

Bytes box(std::string_view type, std::initializer_list<Bytes> parts) {
  return box(type, joined(parts));
}

Bytes fullBox(std::string_view type, std::uint32_t versionAndFlags, const Bytes& rest) {
  return box(type, {Writer().u32(versionAndFlags), rest});
}

Bytes fileType(std::string_view majorBrand) {
  return box("ftyp", Writer().text(majorBrand).u32(0).text(majorBrand));
}

Bytes movieHeader(std::uint32_t timeScale, std::uint32_t duration, std::uint32_t creationTime) {
  Writer writer;
  writer.u32(creationTime).u32(creationTime).u32(timeScale).u32(duration);
  writer.fixed(1).u16(0x100).zeros(10);
  writer.fixed(1).zeros(12).fixed(1).zeros(12).u32(0x40000000);
  return fullBox("mvhd", 0, writer.zeros(24).u32(10));
}

Bytes trackHeader(std::uint32_t trackID, std::uint32_t duration, Matrix matrix, double width,
                  double height) {
  Writer writer;
  writer.u32(0).u32(0).u32(trackID).u32(0).u32(duration).zeros(16);
  int column = 0;
  for (const double number : matrix) {
    writer.fixed(number);
    if (++column % 2 == 0) writer.u32(column == 6 ? 0x40000000 : 0);
  }
  return fullBox("tkhd", 0xF, writer.fixed(width).fixed(height));
}

Bytes mediaHeader(std::uint32_t timeScale, std::uint32_t duration) {
  return fullBox("mdhd", 0, Writer().u32(0).u32(0).u32(timeScale).u32(duration).u32(0x55C40000));
}

Bytes handler(std::string_view type) {
  return fullBox("hdlr", 0, Writer().text("mhlr").text(type).zeros(13));
}

Bytes editList(std::uint32_t duration) {
  return box("edts", {fullBox("elst", 0, Writer().u32(1).u32(duration).u32(0).u32(0x10000))});
}

Bytes timeToSample(const std::vector<std::pair<std::uint32_t, std::uint32_t>>& runs) {
  Writer writer;
  writer.u32(runs.size());
  for (const auto& [count, delta] : runs) writer.u32(count).u32(delta);
  return fullBox("stts", 0, writer);
}

Bytes sampleSizes(const std::vector<std::uint32_t>& sizes) {
  Writer writer;
  writer.u32(0).u32(sizes.size());
  for (const std::uint32_t size : sizes) writer.u32(size);
  return fullBox("stsz", 0, writer);
}

Bytes constantSampleSize(std::uint32_t size, std::uint32_t count) {
  return fullBox("stsz", 0, Writer().u32(size).u32(count));
}

Bytes sampleDescriptions(const std::vector<Bytes>& entries, std::uint32_t version) {
  Writer writer;
  writer.u32(entries.size());
  for (const Bytes& entry : entries) writer.bytes(entry);
  return fullBox("stsd", version << 24, writer);
}

Bytes track(const TrackParts& parts) {
  const Bytes tables = box("stbl", {parts.descriptions, parts.times, parts.sizes});
  const Bytes information = box("minf", {handler("alis"), tables});
  const Bytes media = box("mdia", {parts.mediaHeader, handler(parts.handlerType), information});
  return box("trak", {parts.header, parts.edits, media, parts.more});
}

Bytes videoEntry(const VideoEntry& entry) {
  Writer writer;
  writer.zeros(6).u16(1).u16(0).u16(0);
  if (entry.vendor.empty()) writer.u32(0);
  writer.text(entry.vendor).u32(entry.quality).u32(entry.quality);
  writer.u16(entry.width).u16(entry.height).fixed(72).fixed(72).u32(0).u16(1);
  writer.u8(entry.compressorName.size()).text(entry.compressorName);
  writer.zeros(31 - entry.compressorName.size()).u16(entry.depth).u16(0xFFFF);
  return box(entry.code, writer.bytes(entry.boxes));
}

Bytes soundEntry(std::string_view code, std::uint16_t channels, std::uint16_t bits,
                 std::uint32_t sampleRate, const Bytes& boxes, std::uint16_t version) {
  return box(code, Writer()
                       .zeros(6)
                       .u16(1)
                       .u16(version)
                       .zeros(6)
                       .u16(channels)
                       .u16(bits)
                       .u32(0)
                       .u32(std::uint64_t{sampleRate} << 16)
                       .bytes(boxes));
}

Bytes linearEntry(double sampleRate, std::uint32_t channels, std::uint32_t bits,
                  std::uint32_t flags) {
  const std::uint32_t frame = channels * bits / 8;
  Writer second;
  second.u32(72).u64(std::bit_cast<std::uint64_t>(sampleRate)).u32(channels).u32(0x7F000000);
  second.u32(bits).u32(flags).u32(frame).u32(1);
  return box(
      "lpcm",
      {Writer().zeros(6).u16(1).u16(2).zeros(6).u16(3).u16(16).u16(0xFFFE).u16(0).u32(0x10000),
       second});
}

Bytes elementaryStreamBox(std::uint8_t objectType, const Bytes& configuration) {
  Writer decoder;
  decoder.u8(objectType).u8(0x15).u24(6144).u32(96000).u32(96000);
  decoder.u8(5).u8(configuration.size()).bytes(configuration);
  const Bytes inner = decoder;
  Writer stream;
  stream.u16(0).u8(0).u8(4).u24(0x808080).u8(inner.size()).bytes(inner).u8(6).u8(1).u8(2);
  const Bytes outer = stream;
  return fullBox("esds", 0, Writer().u8(3).u8(outer.size()).bytes(outer));
}

Bytes dataBox(std::uint32_t type, const Bytes& value) {
  return box("data", {Writer().u32(type).u32(0), value});
}

Bytes quickTimeMetadata(const std::vector<std::pair<std::string_view, std::string_view>>& items) {
  Writer keys;
  Writer list;
  keys.u32(items.size());
  std::uint32_t index = 0;
  for (const auto& [key, value] : items) {
    keys.u32(8 + key.size()).text("mdta").text(key);
    const Bytes data = dataBox(1, Writer().text(value));
    list.u32(8 + data.size()).u32(++index).bytes(data);
  }
  return box("meta", {fullBox("hdlr", 0, Writer().u32(0).text("mdta").zeros(14)),
                      fullBox("keys", 0, keys), box("ilst", list)});
}

Bytes userDataText(std::string_view type, std::uint16_t language, std::string_view text) {
  return box(type, Writer().u16(text.size()).u16(language).text(text));
}

Bytes codedSamples(std::size_t count) {
  return box("mdat", Bytes(count, 0xEE));
}

Bytes phoneMovie() {
  const Bytes sound = track({.header = trackHeader(1, 1800, {1, 0, 0, 1, 0, 0}, 0, 0),
                             .edits = editList(1800),
                             .mediaHeader = mediaHeader(44100, 132096),
                             .handlerType = "soun",
                             .descriptions = sampleDescriptions({aacEntry(2, 44100, {0x12, 0x08})}),
                             .times = timeToSample({{129, 1024}}),
                             .sizes = sampleSizes(std::vector<std::uint32_t>(129, 279)),
                             .more = {}});
  const Bytes entry =
      videoEntry({.quality = 512,
                  .vendor = "appl",
                  .compressorName = "H.264",
                  .boxes = joined({box("avcC", plainAvcConfiguration), colourBox(), zeros(4)})});
  const Bytes video = track({.header = trackHeader(2, 1800, {0, 1, -1, 0, 1080, 0}, 1920, 1080),
                             .edits = editList(1800),
                             .mediaHeader = mediaHeader(600, 1800),
                             .handlerType = "vide",
                             .descriptions = sampleDescriptions({entry}),
                             .times = timeToSample({{88, 20}, {1, 25}, {1, 15}}),
                             .sizes = sampleSizes(std::vector<std::uint32_t>(90, 50000)),
                             .more = {}});
  const Bytes orientation = track({.header = trackHeader(3, 1800, {1, 0, 0, 1, 0, 0}, 0, 0),
                                   .edits = editList(1800),
                                   .mediaHeader = mediaHeader(600, 1800),
                                   .handlerType = "meta",
                                   .descriptions = sampleDescriptions({boxedMetadataEntry()}),
                                   .times = timeToSample({{1, 1800}}),
                                   .sizes = constantSampleSize(10, 1),
                                   .more = {}});
  const Bytes metadata = quickTimeMetadata({
      {"com.apple.quicktime.location.ISO6709", "+48.8577+002.2950+035.000/"},
      {"com.apple.quicktime.location.accuracy.horizontal", "4.7"},
      {"com.apple.quicktime.make", "Apple"},
      {"com.apple.quicktime.model", "iPhone 8"},
      {"com.apple.quicktime.software", "12.4"},
      {"com.apple.quicktime.creationdate", "2018-09-30T14:03:11+0200"},
  });
  return joined(
      {fileType("qt  "), box("wide", Bytes()), codedSamples(200000),
       box("moov", {movieHeader(600, 1800, 3621153795), sound, video, orientation, metadata})});
}

Bytes webMovie() {
  const Bytes entry = videoEntry(
      {.width = 1280,
       .height = 720,
       .boxes = joined({box("avcC", plainAvcConfiguration), box("pasp", Writer().u32(4).u32(3)),
                        box("colr", Writer().text("nclx").u16(9).u16(16).u16(9).u8(0x80))})});
  const Bytes video = track({.header = trackHeader(1, 10010, {1, 0, 0, 1, 0, 0}, 1706.65625, 720),
                             .edits = editList(10010),
                             .mediaHeader = mediaHeader(30000, 300300),
                             .handlerType = "vide",
                             .descriptions = sampleDescriptions({entry}),
                             .times = timeToSample({{300, 1001}}),
                             .sizes = sampleSizes(std::vector<std::uint32_t>(300, 6000)),
                             .more = {}});
  const Bytes sound = track({.header = trackHeader(2, 10005, {1, 0, 0, 1, 0, 0}, 0, 0),
                             .edits = editList(10005),
                             .mediaHeader = mediaHeader(48000, 480256),
                             .handlerType = "soun",
                             .descriptions = sampleDescriptions({aacEntry(2, 48000, {0x11, 0x90})}),
                             .times = timeToSample({{469, 1024}}),
                             .sizes = sampleSizes(std::vector<std::uint32_t>(469, 341)),
                             .more = {}});
  const Bytes list = box("ilst", {box("\xa9too", dataBox(1, Writer().text("Lavf59.27.100"))),
                                  box("\xa9nam", dataBox(1, Writer().text("Caf\xC3\xA9"))),
                                  box("desc", dataBox(1, Writer().text("not a common key")))});
  const Bytes userData =
      box("udta",
          fullBox("meta", 0,
                  joined({fullBox("hdlr", 0, Writer().u32(0).text("mdirappl").zeros(9)), list})));
  return joined({fileType("isom"), box("moov", {movieHeader(1000, 10010), video, sound, userData}),
                 box("free", zeros(8)), codedSamples(100000)});
}

}  // namespace media::movie
