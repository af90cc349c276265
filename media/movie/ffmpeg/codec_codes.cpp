// SPDX-License-Identifier: MIT
#include "media/movie/ffmpeg/codec_codes.h"

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <algorithm>
#include <string_view>

namespace media::movie {

namespace {

using model::FourCharCode;
using model::fourCharCode;

struct Code {
  AVCodecID codec;
  FourCharCode code;
};

constexpr Code codes[] = {
    {AV_CODEC_ID_H264, fourCharCode("avc1")},       {AV_CODEC_ID_HEVC, fourCharCode("hvc1")},
    {AV_CODEC_ID_MPEG4, fourCharCode("mp4v")},      {AV_CODEC_ID_MPEG1VIDEO, fourCharCode("mp1v")},
    {AV_CODEC_ID_MPEG2VIDEO, fourCharCode("mp2v")}, {AV_CODEC_ID_MJPEG, fourCharCode("jpeg")},
    {AV_CODEC_ID_H263, fourCharCode("h263")},       {AV_CODEC_ID_DVVIDEO, fourCharCode("dvc ")},
    {AV_CODEC_ID_VP8, fourCharCode("vp08")},        {AV_CODEC_ID_VP9, fourCharCode("vp09")},
    {AV_CODEC_ID_AV1, fourCharCode("av01")},        {AV_CODEC_ID_THEORA, fourCharCode("theo")},
    {AV_CODEC_ID_RAWVIDEO, fourCharCode("raw ")},   {AV_CODEC_ID_PRORES, fourCharCode("apcn")},
    {AV_CODEC_ID_AAC, fourCharCode("aac ")},        {AV_CODEC_ID_MP1, fourCharCode(".mp1")},
    {AV_CODEC_ID_MP2, fourCharCode(".mp2")},        {AV_CODEC_ID_MP3, fourCharCode(".mp3")},
    {AV_CODEC_ID_AC3, fourCharCode("ac-3")},        {AV_CODEC_ID_EAC3, fourCharCode("ec-3")},
    {AV_CODEC_ID_ALAC, fourCharCode("alac")},       {AV_CODEC_ID_FLAC, fourCharCode("flac")},
    {AV_CODEC_ID_OPUS, fourCharCode("opus")},       {AV_CODEC_ID_VORBIS, fourCharCode("vorb")},
    {AV_CODEC_ID_AMR_NB, fourCharCode("samr")},     {AV_CODEC_ID_AMR_WB, fourCharCode("sawb")},
    {AV_CODEC_ID_PCM_MULAW, fourCharCode("ulaw")},  {AV_CODEC_ID_PCM_ALAW, fourCharCode("alaw")},
};

// A name of any length as a code, filled with blanks.
FourCharCode codeOfName(std::string_view name) {
  FourCharCode code = 0;
  for (std::size_t index = 0; index < 4; ++index)
    code = (code << 8) | static_cast<unsigned char>(index < name.size() ? name[index] : ' ');
  return code;
}

}  // namespace

bool isLinearSound(AVCodecID codec) {
  const bool isPcm = codec >= AV_CODEC_ID_FIRST_AUDIO && codec < AV_CODEC_ID_ADPCM_IMA_QT;
  return isPcm && codec != AV_CODEC_ID_PCM_MULAW && codec != AV_CODEC_ID_PCM_ALAW;
}

FourCharCode codeOfCodec(AVCodecID codec, std::uint32_t tag) {
  for (const Code& known : codes) {
    if (known.codec == codec) return known.code;
  }
  if (isLinearSound(codec)) return fourCharCode("lpcm");
  if (tag > 0xFFFF) return __builtin_bswap32(tag);  // FFmpeg keeps the first character lowest
  return codeOfName(avcodec_get_name(codec));
}

}  // namespace media::movie
