// SPDX-License-Identifier: MIT
#include "samples/coding/sound_encoder.h"

#include <algorithm>
#include <cmath>

#include "samples/coding/av_handles.h"
#include "samples/pictures/noise.h"

extern "C" {
#include <libavutil/channel_layout.h>
}

namespace samples {

namespace {

AvContext openEncoder() {
  const AVCodec* codec = avcodec_find_encoder(AV_CODEC_ID_AAC);
  if (codec == nullptr) return nullptr;
  AvContext context(avcodec_alloc_context3(codec));
  context->sample_fmt = AV_SAMPLE_FMT_FLTP;
  context->sample_rate = soundRate;
  av_channel_layout_default(&context->ch_layout, 1);
  context->bit_rate = 64000;
  context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER | AV_CODEC_FLAG_BITEXACT;
  if (avcodec_open2(context.get(), codec, nullptr) < 0) return nullptr;
  return context;
}

AvFrame makeFrame(const AVCodecContext& context) {
  AvFrame frame(av_frame_alloc());
  frame->nb_samples = samplesPerPacket;
  frame->format = context.sample_fmt;
  frame->sample_rate = soundRate;
  if (av_channel_layout_copy(&frame->ch_layout, &context.ch_layout) < 0 ||
      av_frame_get_buffer(frame.get(), 0) < 0)
    return nullptr;
  return frame;
}

}  // namespace

std::vector<float> softChord(std::uint32_t seed, int sampleCount) {
  constexpr float steps[] = {0, 4, 7, 11, 14};  // half tones above the root
  const float root = 110 * std::exp2(static_cast<float>(seed % 7) / 12);
  std::vector<float> samples(static_cast<std::size_t>(sampleCount));
  for (std::size_t index = 0; index < samples.size(); ++index) {
    const double time = static_cast<double>(index) / soundRate;
    double sum = 0;
    for (const float step : steps) {
      const double tone = static_cast<double>(root) * std::exp2(static_cast<double>(step) / 12);
      const double swell =
          0.6 + 0.4 * std::sin(6.2831853 * (0.2 * time + static_cast<double>(step) / 9));
      sum += swell * std::sin(6.2831853 * tone * time);
    }
    const double fade =
        std::min({time * 4, 1.0, (sampleCount - static_cast<double>(index)) / 8000.0});
    samples[index] = static_cast<float>(0.05 * sum * fade);
  }
  return samples;
}

Bytes linearPcm(const std::vector<float>& samples) {
  ByteWriter out(ByteOrder::little);
  for (const float sample : samples)
    out.u16(static_cast<std::int16_t>(std::lround(std::clamp(sample, -1.0f, 1.0f) * 32767)));
  return out.take();
}

model::Result<CodedSound> encodeAac(const std::vector<float>& samples) {
  const AvContext context = openEncoder();
  if (context == nullptr) return model::Error{"the sound encoder cannot be opened"};
  const AvFrame frame = makeFrame(*context);
  if (frame == nullptr) return model::Error{"no memory for a frame"};
  CodedSound sound;
  sound.configuration.assign(context->extradata, context->extradata + context->extradata_size);
  const auto take = [&](const AVPacket& packet) {
    sound.packets.emplace_back(packet.data, packet.data + packet.size);
  };
  for (std::size_t start = 0; start < samples.size(); start += samplesPerPacket) {
    if (av_frame_make_writable(frame.get()) < 0) return model::Error{"no memory for a frame"};
    auto* target = reinterpret_cast<float*>(frame->data[0]);
    for (std::size_t index = 0; index < samplesPerPacket; ++index)
      target[index] = start + index < samples.size() ? samples[start + index] : 0;
    frame->pts = static_cast<std::int64_t>(start);
    if (!encodeFrame(*context, frame.get(), take)) return model::Error{"the sound encoder failed"};
  }
  if (!encodeFrame(*context, nullptr, take)) return model::Error{"the sound encoder failed"};
  return sound;
}

}  // namespace samples
