// SPDX-License-Identifier: MIT
#include "samples/coding/video_encoder.h"

#include <string>

#include "samples/coding/av_handles.h"
#include "samples/coding/nal_units.h"
#include "samples/coding/yuv_frame.h"

extern "C" {
#include <libavutil/opt.h>
}

namespace samples {

namespace {

bool isHevc(const VideoFormat& format) {
  return format.codec == VideoCodec::hevc;
}

void setColors(AVCodecContext& context, bool photo) {
  context.color_range = photo ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
  context.color_primaries = AVCOL_PRI_BT709;
  context.color_trc = photo ? AVCOL_TRC_IEC61966_2_1 : AVCOL_TRC_BT709;
  context.colorspace = photo ? AVCOL_SPC_SMPTE170M : AVCOL_SPC_BT709;
}

AvContext openEncoder(const VideoFormat& format) {
  const AVCodec* codec = avcodec_find_encoder_by_name(isHevc(format) ? "libx265" : "libx264");
  if (codec == nullptr) return nullptr;
  AvContext context(avcodec_alloc_context3(codec));
  context->width = format.width;
  context->height = format.height;
  context->pix_fmt = AV_PIX_FMT_YUV420P;
  context->time_base = {1, format.framesPerSecond};
  context->framerate = {format.framesPerSecond, 1};
  context->gop_size = format.stillPictures ? 1 : format.framesPerSecond;
  context->max_b_frames = format.stillPictures ? 0 : 1;
  context->thread_count = 1;
  context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER | AV_CODEC_FLAG_BITEXACT;
  setColors(*context, format.stillPictures);
  const std::string quality = std::to_string(format.quality);
  av_opt_set(context->priv_data, "crf", quality.c_str(), 0);
  av_opt_set(context->priv_data, "preset", "veryfast", 0);
  if (isHevc(format))
    av_opt_set(context->priv_data, "x265-params",
               format.stillPictures
                   ? "log-level=0:pools=none:frame-threads=1:wpp=0:info=0:keyint=1:repeat-headers=0"
                   : "log-level=0:pools=none:frame-threads=1:wpp=0:info=0:repeat-headers=0:"
                     "open-gop=0:b-pyramid=0:b-adapt=0",
               0);
  else
    av_opt_set(context->priv_data, "x264-params", "b-adapt=0:scenecut=0:mbtree=0", 0);
  if (avcodec_open2(context.get(), codec, nullptr) < 0) return nullptr;
  return context;
}

AvFrame makeFrame(const VideoFormat& format) {
  AvFrame frame(av_frame_alloc());
  frame->width = format.width;
  frame->height = format.height;
  frame->format = AV_PIX_FMT_YUV420P;
  if (av_frame_get_buffer(frame.get(), 0) < 0) return nullptr;
  return frame;
}

void fillFrame(AVFrame& frame, const Picture& picture, bool photo) {
  fillYuv(picture, photo ? YuvRange::photo : YuvRange::film,
          {{frame.data[0], frame.data[1], frame.data[2]},
           {frame.linesize[0], frame.linesize[1], frame.linesize[2]}});
}

CodedFrame codedFrame(const AVPacket& packet, const VideoFormat& format, std::size_t order) {
  const std::span<const std::uint8_t> stream(packet.data, static_cast<std::size_t>(packet.size));
  return {.data = isHevc(format) ? lengthPrefixedHevc(stream) : lengthPrefixedAvc(stream),
          .decodeIndex = static_cast<int>(order),
          .showIndex = static_cast<int>(packet.pts),
          .isKey = (packet.flags & AV_PKT_FLAG_KEY) != 0};
}

}  // namespace

model::Result<CodedVideo> encodeVideo(const VideoFormat& format, int count,
                                      const std::function<Picture(int)>& frameAt) {
  av_log_set_level(AV_LOG_ERROR);
  const AvContext context = openEncoder(format);
  if (context == nullptr) return model::Error{"the video encoder cannot be opened"};
  const AvFrame frame = makeFrame(format);
  if (frame == nullptr) return model::Error{"no memory for a frame"};
  CodedVideo video;
  const std::span<const std::uint8_t> head(context->extradata,
                                           static_cast<std::size_t>(context->extradata_size));
  video.configuration = isHevc(format) ? hevcConfiguration(head) : avcConfiguration(head);
  const auto take = [&](const AVPacket& packet) {
    video.frames.push_back(codedFrame(packet, format, video.frames.size()));
  };
  bool sound = !video.configuration.empty();
  for (int index = 0; sound && index < count; ++index) {
    sound = av_frame_make_writable(frame.get()) >= 0;
    if (!sound) break;
    fillFrame(*frame, frameAt(index), format.stillPictures);
    frame->pts = index;
    sound = encodeFrame(*context, frame.get(), take);
  }
  if (!sound || !encodeFrame(*context, nullptr, take))
    return model::Error{"the video encoder failed"};
  return video;
}

}  // namespace samples
