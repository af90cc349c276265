// SPDX-License-Identifier: MIT
//
// FFmpeg's own structures, as its demuxer fills them without decoding, put under the names and into
// the units of the readers of our own: bits a second, frames a second, and a description with the
// extensions that these give.
#include "media/movie/ffmpeg/track.h"

#include <limits>

#include "media/movie/boxes/four_char_text.h"
#include "media/movie/ffmpeg/codec_codes.h"
#include "media/movie/ffmpeg/metadata.h"
#include "media/movie/ffmpeg/stream_statistics.h"
#include "media/movie/tracks/colour_tags.h"
#include "media/movie/tracks/linear_sound.h"

namespace media::movie {

namespace {

using model::Dictionary;
using model::fourCharCode;
using model::Track;

model::FourCharCode mediaTypeOf(const AVStream& stream) {
  if ((stream.disposition & AV_DISPOSITION_ATTACHED_PIC) != 0) return 0;
  switch (stream.codecpar->codec_type) {
    case AVMEDIA_TYPE_VIDEO:
      return fourCharCode("vide");
    case AVMEDIA_TYPE_AUDIO:
      return fourCharCode("soun");
    case AVMEDIA_TYPE_SUBTITLE:
      return fourCharCode("sbtl");
    default:
      return 0;
  }
}

bool isPositive(AVRational rational) {
  return rational.num > 0 && rational.den > 0;
}

double durationOf(const AVFormatContext& context, const AVStream& stream) {
  if (stream.duration > 0 && isPositive(stream.time_base))
    return static_cast<double>(stream.duration) * av_q2d(stream.time_base);
  if (const double seconds = statisticsOf(stream).duration; seconds > 0) return seconds;
  if (context.duration > 0) return static_cast<double>(context.duration) / AV_TIME_BASE;
  return std::numeric_limits<double>::quiet_NaN();
}

// Bits a second as the codec or the container states them; 0 where neither does.
double statedRate(const AVStream& stream) {
  constexpr std::int64_t variableMpegRate =
      std::int64_t{0x3FFFF} * 400;  // says that the rate varies
  const std::int64_t rate = stream.codecpar->bit_rate;
  if (rate > 0 && rate != variableMpegRate) return static_cast<double>(rate);
  return statisticsOf(stream).dataRate;
}

// A video without a rate of its own has what the whole file has beside the other streams.
double dataRate(const AVFormatContext& context, const AVStream& stream) {
  const double stated = statedRate(stream);
  if (stated > 0 || stream.codecpar->codec_type != AVMEDIA_TYPE_VIDEO) return stated;
  auto rest = static_cast<double>(context.bit_rate);
  for (unsigned index = 0; index < context.nb_streams; ++index)
    rest -= statedRate(*context.streams[index]);
  return rest > 0 ? rest : 0;
}

float frameRate(const AVStream& stream) {
  const AVCodecParameters& codec = *stream.codecpar;
  if (const double stated = statisticsOf(stream).frameRate; stated > 0)
    return static_cast<float>(stated);
  if (codec.codec_type == AVMEDIA_TYPE_AUDIO) {
    const int frames = isLinearSound(codec.codec_id) ? 1 : codec.frame_size;
    return frames > 0 ? static_cast<float>(codec.sample_rate) / static_cast<float>(frames) : 0;
  }
  return isPositive(stream.avg_frame_rate) ? static_cast<float>(av_q2d(stream.avg_frame_rate)) : 0;
}

// FFmpeg's display matrix: nine fixed-point numbers, row by row, the last column 2.30.
model::AffineTransform transformOf(const AVStream& stream) {
  std::size_t size = 0;
  const std::uint8_t* bytes = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &size);
  if (bytes == nullptr || size < 9 * sizeof(std::int32_t)) return {};
  const auto* matrix = reinterpret_cast<const std::int32_t*>(bytes);
  const auto at = [matrix](int index) { return matrix[index] / 65536.0; };
  return {at(0), at(1), at(3), at(4), at(6), at(7)};
}

void setAtom(Dictionary& extensions, const AVCodecParameters& codec) {
  const bool isAvc = codec.codec_id == AV_CODEC_ID_H264;
  if ((!isAvc && codec.codec_id != AV_CODEC_ID_HEVC) || codec.extradata_size <= 0) return;
  const std::uint8_t* begin = codec.extradata;
  if (*begin != 1) return;  // a bare stream, and no configuration box
  extensions["SampleDescriptionExtensionAtoms"] =
      Dictionary{{isAvc ? "avcC" : "hvcC", model::Data(begin, begin + codec.extradata_size)}};
}

void describeVideo(model::FormatDescription& description, const AVCodecParameters& codec) {
  Dictionary& extensions = description.extensions;
  description.width = codec.width;
  description.height = codec.height;
  extensions["CVFieldCount"] = 1;
  extensions["Depth"] = 24;
  extensions["FormatName"] = "'" + fourCharText(description.mediaSubType) + "'";
  extensions["FullRangeVideo"] = codec.color_range == AVCOL_RANGE_JPEG;
  setColourTags(extensions, {static_cast<std::uint32_t>(codec.color_primaries),
                             static_cast<std::uint32_t>(codec.color_trc),
                             static_cast<std::uint32_t>(codec.color_space)});
  if (isPositive(codec.sample_aspect_ratio)) {
    extensions["CVPixelAspectRatio"] =
        Dictionary{{"HorizontalSpacing", codec.sample_aspect_ratio.num},
                   {"VerticalSpacing", codec.sample_aspect_ratio.den}};
  }
  setAtom(extensions, codec);
}

std::uint32_t notNegative(int number) {
  return number > 0 ? static_cast<std::uint32_t>(number) : 0;
}

std::uint32_t linearFlags(AVCodecID codec) {
  switch (codec) {
    case AV_CODEC_ID_PCM_U8:
      return 0;
    case AV_CODEC_ID_PCM_F32LE:
    case AV_CODEC_ID_PCM_F64LE:
      return linearIsFloat;
    case AV_CODEC_ID_PCM_F32BE:
    case AV_CODEC_ID_PCM_F64BE:
      return linearIsFloat | linearIsBigEndian;
    case AV_CODEC_ID_PCM_S16BE:
    case AV_CODEC_ID_PCM_S24BE:
    case AV_CODEC_ID_PCM_S32BE:
    case AV_CODEC_ID_PCM_BLURAY:
    case AV_CODEC_ID_PCM_DVD:
      return linearIsSigned | linearIsBigEndian;
    default:
      return linearIsSigned;
  }
}

void describeSound(model::FormatDescription& description, const AVCodecParameters& codec) {
  const std::uint32_t channels = notNegative(codec.ch_layout.nb_channels);
  if (isLinearSound(codec.codec_id)) {
    description.audio =
        packedSound(codec.sample_rate, channels, notNegative(codec.bits_per_coded_sample),
                    linearFlags(codec.codec_id));
    return;
  }
  model::AudioStreamDescription audio;
  audio.sampleRate = codec.sample_rate;
  audio.formatID = description.mediaSubType;
  audio.framesPerPacket = notNegative(codec.frame_size);
  audio.channelsPerFrame = channels;
  description.audio = audio;
}

model::Size naturalSize(const AVCodecParameters& codec) {
  model::Size size{static_cast<double>(codec.width), static_cast<double>(codec.height)};
  if (isPositive(codec.sample_aspect_ratio)) size.width *= av_q2d(codec.sample_aspect_ratio);
  return size;
}

}  // namespace

std::optional<Track> trackOfStream(const AVFormatContext& context, const AVStream& stream) {
  const model::FourCharCode mediaType = mediaTypeOf(stream);
  if (mediaType == 0) return std::nullopt;
  const AVCodecParameters& codec = *stream.codecpar;
  model::FormatDescription description;
  description.mediaType = mediaType;
  description.mediaSubType = codeOfCodec(codec.codec_id, codec.codec_tag);
  Track track;
  track.trackID = stream.index + 1;
  track.mediaType = fourCharText(mediaType);
  track.duration = durationOf(context, stream);
  track.estimatedDataRate = static_cast<float>(dataRate(context, stream));
  track.nominalFrameRate = frameRate(stream);
  track.commonMetadata = commonMetadataOf(stream.metadata);
  if (codec.codec_type == AVMEDIA_TYPE_VIDEO) {
    describeVideo(description, codec);
    track.naturalSize = naturalSize(codec);
    track.preferredTransform = transformOf(stream);
    if (isPositive(stream.r_frame_rate)) track.minFrameDuration = 1 / av_q2d(stream.r_frame_rate);
  } else if (codec.codec_type == AVMEDIA_TYPE_AUDIO) {
    describeSound(description, codec);
  }
  track.formatDescriptions.push_back(std::move(description));
  return track;
}

}  // namespace media::movie
