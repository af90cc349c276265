// SPDX-License-Identifier: MIT
//
// A coder's headers stand in its configuration record (FFmpeg's "extradata", which it gathers from
// packets too), else in the first packet of the stream. Each reader is a row of a table by codec;
// what is known already is never changed.
#include "media/movie/ffmpeg/coded_headers.h"

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <vector>

#include "io/byte_view.h"
#include "media/movie/boxes/bit_reader.h"
#include "media/movie/ffmpeg/codec_codes.h"
#include "media/movie/tracks/elementary_stream.h"
#include "media/movie/tracks/video_usability.h"

namespace media::movie {

namespace {

constexpr int mostPackets = 500;  // read for those streams that only they tell of

void setSize(AVCodecParameters& codec, std::uint32_t width, std::uint32_t height) {
  constexpr std::uint32_t largest = 1 << 16;
  if (codec.width > 0 || codec.height > 0 || width > largest || height > largest) return;
  codec.width = static_cast<int>(width);
  codec.height = static_cast<int>(height);
}

void setPixelShape(AVCodecParameters& codec, std::uint32_t width, std::uint32_t height) {
  AVRational& shape = codec.sample_aspect_ratio;
  if (shape.num > 0 || width == 0 || height == 0) return;
  av_reduce(&shape.num, &shape.den, width, height, 1 << 16);
}

void setSound(AVCodecParameters& codec, std::uint32_t rate, std::uint32_t channels) {
  if (codec.sample_rate <= 0) codec.sample_rate = static_cast<int>(rate);
  if (codec.ch_layout.nb_channels <= 0 && channels > 0)
    av_channel_layout_default(&codec.ch_layout, static_cast<int>(channels));
}

void setUsability(AVCodecParameters& codec, const VideoUsability& usability) {
  setPixelShape(codec, usability.pixelWidth, usability.pixelHeight);
  if (usability.isFullRange && codec.color_range == AVCOL_RANGE_UNSPECIFIED)
    codec.color_range = AVCOL_RANGE_JPEG;
  if (!usability.colour || codec.color_primaries != AVCOL_PRI_UNSPECIFIED) return;
  codec.color_primaries = static_cast<AVColorPrimaries>(usability.colour->primaries);
  codec.color_trc = static_cast<AVColorTransferCharacteristic>(usability.colour->transfer);
  codec.color_space = static_cast<AVColorSpace>(usability.colour->matrix);
}

void readAvc(io::ByteView bytes, AVCodecParameters& codec) {
  const bool isConfiguration = bytes.u8(0) == 1;
  setUsability(codec,
               isConfiguration ? usabilityOfAvcConfiguration(bytes) : usabilityOfAvcStream(bytes));
}

void readHevc(io::ByteView bytes, AVCodecParameters& codec) {
  const bool isConfiguration = bytes.u8(0) == 1;
  setUsability(
      codec, isConfiguration ? usabilityOfHevcConfiguration(bytes) : usabilityOfHevcStream(bytes));
}

// What follows the four bytes of a mark; empty where it is not there.
io::ByteView behindMark(io::ByteView bytes, std::string_view mark) {
  const std::size_t place = bytes.text().find(mark);
  return place == std::string_view::npos ? io::ByteView() : bytes.from(place + mark.size());
}

// A sequence header: ISO/IEC 13818-2, 6.2.2.1 and table 6-3, where the shape is that of the
// picture.
void readMpegVideo(io::ByteView bytes, AVCodecParameters& codec) {
  using namespace std::string_view_literals;
  struct Shape {
    std::uint32_t width;
    std::uint32_t height;
  };
  constexpr std::array<Shape, 5> pictures = {{{0, 0}, {0, 0}, {4, 3}, {16, 9}, {221, 100}}};
  BitReader header(behindMark(bytes, "\0\0\1\xB3"sv));
  const std::uint32_t width = header.bits(12);
  const std::uint32_t height = header.bits(12);
  const std::uint32_t shape = header.bits(4);
  if (header.isOverrun()) return;
  setSize(codec, width, height);
  if (shape == 1) setPixelShape(codec, 1, 1);
  if (codec.codec_id == AV_CODEC_ID_MPEG2VIDEO && shape < pictures.size())
    setPixelShape(codec, pictures[shape].width * height, pictures[shape].height * width);
}

// A video object layer: ISO/IEC 14496-2, 6.2.3 and table 6-12.
void readMpeg4Video(io::ByteView bytes, AVCodecParameters& codec) {
  using namespace std::string_view_literals;
  struct Shape {
    std::uint8_t width;
    std::uint8_t height;
  };
  constexpr std::array<Shape, 6> shapes = {
      {{0, 0}, {1, 1}, {12, 11}, {10, 11}, {16, 11}, {40, 33}}};
  constexpr std::uint32_t stated = 15;
  BitReader header(behindMark(bytes, "\0\0\1\x20"sv));
  header.skip(9);
  if (header.flag()) header.skip(7);
  const std::uint32_t shape = header.bits(4);
  if (shape == stated) {
    const std::uint32_t width = header.bits(8);
    setPixelShape(codec, width, header.bits(8));
  } else if (shape < shapes.size() && !header.isOverrun()) {
    setPixelShape(codec, shapes[shape].width, shapes[shape].height);
  }
}

// The configuration counts, as in our own readers: a container may state the core's rate.
void readAac(io::ByteView bytes, AVCodecParameters& codec) {
  const auto aac = parseAacConfiguration(bytes);
  if (!aac) return;
  if (aac->sampleRate > 0) codec.sample_rate = static_cast<int>(aac->sampleRate);
  setSound(codec, aac->sampleRate, aac->channels);
  if (codec.frame_size <= 0) codec.frame_size = static_cast<int>(aac->framesPerPacket);
}

// The fixed header of an ADTS frame, as the configuration that it means: ISO/IEC 13818-7, 6.2.1.
void readAacPacket(io::ByteView bytes, AVCodecParameters& codec) {
  BitReader header(bytes);
  if (header.bits(12) != 0xFFF) return;
  header.skip(4);
  const std::uint32_t objectType = header.bits(2) + 1;
  const std::uint32_t rate = header.bits(4);
  header.skip(1);
  const std::uint32_t configuration = objectType << 11 | rate << 7 | header.bits(3) << 3;
  if (header.isOverrun()) return;
  const std::array both = {static_cast<std::uint8_t>(configuration >> 8),
                           static_cast<std::uint8_t>(configuration)};
  readAac(io::ByteView(both), codec);
}

// ETSI TS 102 366, annex E.1.2.2: syncinfo() and the begin of bsi().
void readEac3Packet(io::ByteView bytes, AVCodecParameters& codec) {
  constexpr std::array<std::uint32_t, 3> rates = {48000, 44100, 32000};
  constexpr std::array<std::uint32_t, 4> blocks = {1, 2, 3, 6};
  constexpr std::array<std::uint32_t, 8> channels = {2, 1, 2, 3, 3, 4, 4, 5};
  constexpr std::uint32_t samplesOfBlock = 256;
  BitReader header(bytes);
  if (header.bits(16) != 0x0B77) return;
  header.skip(5);
  const std::uint32_t size = 2 * (header.bits(11) + 1);
  const std::uint32_t code = header.bits(2);
  const std::uint32_t low = header.bits(2);  // of half the rate, where that is the code
  const bool isHalf = code == rates.size();
  if (isHalf && low >= rates.size()) return;
  const std::uint32_t rate = isHalf ? rates[low] / 2 : rates[code];
  const std::uint32_t samples = samplesOfBlock * (isHalf ? blocks[3] : blocks[low]);
  const std::uint32_t all = channels[header.bits(3)];
  const std::uint32_t low1 = header.flag() ? 1 : 0;
  if (header.isOverrun()) return;
  setSound(codec, rate, all + low1);
  if (codec.bit_rate <= 0) codec.bit_rate = std::int64_t{8} * size * rate / samples;
  if (codec.frame_size <= 0) codec.frame_size = static_cast<int>(samples);
}

// Sorenson's H.263 in Flash video: Adobe's Video File Format Specification 10.1, E.4.3.
void readFlashVideoPacket(io::ByteView bytes, AVCodecParameters& codec) {
  struct Size {
    std::uint16_t width;
    std::uint16_t height;
  };
  constexpr std::array<Size, 5> sizes = {
      {{352, 288}, {176, 144}, {128, 96}, {320, 240}, {160, 120}}};
  BitReader header(bytes);
  if (header.bits(17) != 1) return;
  header.skip(13);
  const std::uint32_t code = header.bits(3);
  if (code <= 1) {
    const int bits = code == 0 ? 8 : 16;
    const std::uint32_t width = header.bits(bits);
    const std::uint32_t height = header.bits(bits);
    if (!header.isOverrun()) setSize(codec, width, height);
  } else if (code - 2 < sizes.size()) {
    setSize(codec, sizes[code - 2].width, sizes[code - 2].height);
  }
}

using ReadHeader = void (*)(io::ByteView bytes, AVCodecParameters& codec);

struct Coder {
  AVCodecID codec;
  ReadHeader readConfiguration;  // null where there is none
  ReadHeader readPacket;         // null where FFmpeg's parser tells what the configuration does not
};

constexpr Coder coders[] = {
    {AV_CODEC_ID_H264, readAvc, nullptr},
    {AV_CODEC_ID_HEVC, readHevc, nullptr},
    {AV_CODEC_ID_MPEG1VIDEO, readMpegVideo, nullptr},
    {AV_CODEC_ID_MPEG2VIDEO, readMpegVideo, nullptr},
    {AV_CODEC_ID_MPEG4, readMpeg4Video, nullptr},
    {AV_CODEC_ID_FLV1, nullptr, readFlashVideoPacket},
    {AV_CODEC_ID_AAC, readAac, readAacPacket},
    {AV_CODEC_ID_EAC3, nullptr, readEac3Packet},
};

const Coder* coderOf(const AVStream& stream) {
  const auto* coder = std::ranges::find(coders, stream.codecpar->codec_id, &Coder::codec);
  return coder == std::end(coders) ? nullptr : coder;
}

io::ByteView viewOf(const std::uint8_t* bytes, int size) {
  return std::span(bytes, bytes == nullptr || size < 0 ? 0 : static_cast<std::size_t>(size));
}

// What FFmpeg's parsers have seen, which run without coders.
void readParser(AVStream& stream) {
  const AVCodecParserContext* parser = av_stream_get_parser(&stream);
  if (parser == nullptr || parser->width <= 0 || parser->height <= 0) return;
  setSize(*stream.codecpar, static_cast<std::uint32_t>(parser->width),
          static_cast<std::uint32_t>(parser->height));
}

// Samples of a packet, where the codec has always as many.
int samplesOfPacket(const AVCodecParameters& codec) {
  constexpr int highestOfLowRates = 24'000;  // hertz, of MPEG-2's layer 3
  switch (codec.codec_id) {
    case AV_CODEC_ID_MP1:
      return 384;
    case AV_CODEC_ID_MP2:
      return 1152;
    case AV_CODEC_ID_MP3:
      return codec.sample_rate <= highestOfLowRates ? 576 : 1152;
    case AV_CODEC_ID_AAC:
      return 1024;
    default:
      return 0;
  }
}

// What follows from the codec alone.
void readCodec(AVCodecParameters& codec) {
  if (codec.frame_size <= 0) codec.frame_size = samplesOfPacket(codec);
  if (isLinearSound(codec.codec_id) && codec.bit_rate <= 0)
    codec.bit_rate = std::int64_t{codec.sample_rate} * codec.ch_layout.nb_channels *
                     av_get_bits_per_sample(codec.codec_id);
  if (codec.codec_id != AV_CODEC_ID_MJPEG || codec.color_space != AVCOL_SPC_UNSPECIFIED) return;
  codec.color_range = AVCOL_RANGE_JPEG;  // JFIF
  codec.color_space = AVCOL_SPC_BT470BG;
}

// Whether only a packet can tell more of the stream.
bool isUnknown(const AVStream& stream) {
  const AVCodecParameters& codec = *stream.codecpar;
  if (coderOf(stream) == nullptr) return false;
  if (codec.codec_type == AVMEDIA_TYPE_VIDEO) return codec.width <= 0;
  return codec.sample_rate <= 0 || codec.ch_layout.nb_channels <= 0;
}

// A parser that has seen a packet knows more than before it.
void readPacket(const AVPacket& packet, AVStream& stream) {
  readParser(stream);
  const ReadHeader read = coderOf(stream)->readPacket;
  if (read != nullptr) read(viewOf(packet.data, packet.size), *stream.codecpar);
}

std::span<AVStream*> streamsOf(AVFormatContext& context) {
  return {context.streams, context.nb_streams};
}

// The rates of data stay as the first look at the file has them: a parser states that of the packet
// that it saw last.
void readPackets(Demuxer& demuxer) {
  AVFormatContext& context = demuxer.context();
  std::vector<std::int64_t> rates;
  for (const AVStream* stream : streamsOf(context)) rates.push_back(stream->codecpar->bit_rate);
  const auto isAnyUnknown = [&context] {
    const auto streams = streamsOf(context);  // packets may bring more
    return std::ranges::any_of(streams, [](const AVStream* each) { return isUnknown(*each); });
  };
  AVPacket* packet = av_packet_alloc();
  for (int count = 0; packet != nullptr && count < mostPackets && isAnyUnknown(); ++count) {
    if (!demuxer.readPacket(*packet)) break;
    AVStream& stream = *context.streams[packet->stream_index];
    if (isUnknown(stream)) readPacket(*packet, stream);
    av_packet_unref(packet);
  }
  av_packet_free(&packet);
  for (std::size_t index = 0; index < rates.size(); ++index)
    if (rates[index] > 0) context.streams[index]->codecpar->bit_rate = rates[index];
}

}  // namespace

void completeFromHeaders(Demuxer& demuxer) {
  AVFormatContext& context = demuxer.context();
  for (AVStream* stream : streamsOf(context)) {
    AVCodecParameters& codec = *stream->codecpar;
    readParser(*stream);
    const Coder* coder = coderOf(*stream);
    if (coder != nullptr && coder->readConfiguration != nullptr && codec.extradata_size > 0)
      coder->readConfiguration(viewOf(codec.extradata, codec.extradata_size), codec);
  }
  readPackets(demuxer);
  for (AVStream* stream : streamsOf(context)) readCodec(*stream->codecpar);
}

}  // namespace media::movie
