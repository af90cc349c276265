// SPDX-License-Identifier: MIT
//
// A film is painted, coded and put into tracks here, then laid out by samples/movies. Painting is
// what takes long, so a scene is painted a few times only and panned over. Sound is one soft tone;
// timed metadata is one value for the whole length, as a phone's still-image time is.
#include "samples/library/film.h"

#include <cmath>

#include "samples/coding/sound_encoder.h"
#include "samples/coding/video_encoder.h"
#include "samples/movies/sample_descriptions.h"

namespace samples {

namespace {

// A slow pan over a scene that is painted somewhat larger than the frame, a few times with the
// moving things at different places, and blended from one painting to the next.
class Film {
 public:
  explicit Film(const Movie& movie) : _movie(movie), _turned(movie.rotation % 180 != 0) {
    const int width = _turned ? movie.height : movie.width;
    const int height = _turned ? movie.width : movie.height;
    const float seconds =
        static_cast<float>(movie.frames) / static_cast<float>(movie.framesPerSecond);
    for (int painting = 0; painting < paintingCount; ++painting)
      _paintings.push_back(
          paintScene(movie.scene, width + panWidth, height,
                     seconds * static_cast<float>(painting) / (paintingCount - 1)));
    _width = width;
    _height = height;
  }

  // The frame as it is coded: turned back by the rotation with which it is shown.
  Picture frame(int index) const {
    const float progress =
        static_cast<float>(index) / static_cast<float>(std::max(_movie.frames - 1, 1));
    const float pan = panWidth * smoothStep(0, 1, progress);
    const float position = progress * (paintingCount - 1);
    const auto painting = std::min(static_cast<std::size_t>(position), _paintings.size() - 2);
    const float share = position - static_cast<float>(painting);
    Picture shown(_width, _height);
    for (int y = 0; y < _height; ++y)
      for (int x = 0; x < _width; ++x)
        shown.at(x, y) = mix(panned(_paintings[painting], x, y, pan),
                             panned(_paintings[painting + 1], x, y, pan), share);
    if (_movie.rotation == 0) return shown;
    return storedForOrientation(shown, _movie.rotation == 90 ? 6 : _movie.rotation == 180 ? 3 : 8);
  }

 private:
  static constexpr int panWidth = 48;  // pixels
  static constexpr int paintingCount = 4;

  static Rgb panned(const Picture& painting, int x, int y, float pan) {
    const int whole = static_cast<int>(pan);
    return mix(painting.clamped(x + whole, y), painting.clamped(x + whole + 1, y),
               pan - static_cast<float>(whole));
  }

  const Movie& _movie;
  bool _turned;
  int _width = 0;
  int _height = 0;
  std::vector<Picture> _paintings;
};

// Time scales as cameras choose them: 600 units a second as far as that divides evenly.
std::uint32_t videoTimeScale(const Movie& movie) {
  if (movie.brand == MovieBrand::android) return 90000;
  if (movie.brand == MovieBrand::exported)
    return static_cast<std::uint32_t>(movie.framesPerSecond) * 512;
  return movie.framesPerSecond > 60 ? 2400 : 600;
}

model::Result<MovieTrack> videoTrack(const Movie& movie) {
  const Film film(movie);
  const model::Result<CodedVideo> video =
      encodeVideo({.codec = movie.codec,
                   .width = movie.width,
                   .height = movie.height,
                   .framesPerSecond = movie.framesPerSecond,
                   .quality = 25},
                  movie.frames, [&](int index) { return film.frame(index); });
  if (!video) return video.error();
  MovieTrack track{.kind = TrackKind::video,
                   .timeScale = videoTimeScale(movie),
                   .samples = {},
                   .description = videoDescription(movie, video->configuration),
                   .width = movie.width,
                   .height = movie.height,
                   .rotation = movie.rotation};
  const std::uint32_t duration =
      track.timeScale / static_cast<std::uint32_t>(movie.framesPerSecond);
  for (const CodedFrame& frame : video->frames) {
    // A camera's clock is not the movie's: every now and then a frame is a unit longer.
    const bool drifts = movie.brand == MovieBrand::quickTime && frame.decodeIndex % 45 == 44;
    track.samples.push_back({.data = frame.data,
                             .duration = duration + (drifts ? 1 : 0),
                             .compositionOffset = (frame.showIndex - frame.decodeIndex) *
                                                  static_cast<std::int32_t>(duration),
                             .isKey = frame.isKey});
  }
  return track;
}

int soundSampleCount(const Movie& movie) {
  return movie.frames * soundRate / movie.framesPerSecond;
}

model::Result<MovieTrack> aacTrack(const Movie& movie, const std::vector<float>& samples) {
  const model::Result<CodedSound> sound = encodeAac(samples);
  if (!sound) return sound.error();
  MovieTrack track{.kind = TrackKind::sound,
                   .timeScale = soundRate,
                   .samples = {},
                   .description = aacDescription(movie.brand, sound->configuration)};
  // The first packet only warms the decoder up: programs skip it, phones do not care.
  if (movie.brand == MovieBrand::exported) track.mediaStart = samplesPerPacket;
  for (const Bytes& packet : sound->packets)
    track.samples.push_back({.data = packet, .duration = samplesPerPacket});
  return track;
}

MovieTrack linearPcmTrack(const std::vector<float>& samples) {
  constexpr std::uint32_t unitsAtOnce = soundRate / 2;
  MovieTrack track{.kind = TrackKind::sound,
                   .timeScale = soundRate,
                   .samples = {},
                   .description = linearPcmDescription()};
  for (std::size_t start = 0; start < samples.size(); start += unitsAtOnce) {
    const std::size_t end = std::min(start + unitsAtOnce, samples.size());
    track.samples.push_back(
        {.data = linearPcm({samples.begin() + static_cast<std::ptrdiff_t>(start),
                            samples.begin() + static_cast<std::ptrdiff_t>(end)}),
         .duration = 1,
         .units = static_cast<std::uint32_t>(end - start)});
  }
  return track;
}

// One value under the description's only key, for the whole length of the video.
MovieTrack metadataTrack(const MovieTrack& video, std::string_view key, std::uint32_t dataType,
                         const Bytes& value) {
  ByteWriter sample;
  sample.u32(8 + value.size());
  sample.u32(1);
  sample.append(value);
  return {.kind = TrackKind::metadata,
          .timeScale = video.timeScale,
          .samples = {{.data = sample.take(),
                       .duration = static_cast<std::uint32_t>(mediaDuration(video))}},
          .description = timedMetadataDescription(key, dataType)};
}

void addMetadataTracks(std::vector<MovieTrack>& tracks, const Movie& movie) {
  if (movie.brand != MovieBrand::quickTime) return;
  const MovieTrack& video = tracks.front();
  const std::uint8_t orientation = movie.rotation == 90    ? 6
                                   : movie.rotation == 180 ? 3
                                   : movie.rotation == 270 ? 8
                                                           : 1;
  MovieTrack held =
      metadataTrack(video, "com.apple.quicktime.video-orientation", 66, {0, orientation});
  if (movie.livePhoto != nullptr)
    tracks.push_back(metadataTrack(video, "com.apple.quicktime.still-image-time", 65, {0xFF}));
  tracks.push_back(std::move(held));
}

}  // namespace

model::Result<FileContent> makeMovie(const Movie& movie) {
  std::vector<MovieTrack> tracks;
  model::Result<MovieTrack> video = videoTrack(movie);
  if (!video) return video.error();
  tracks.push_back(std::move(*video));
  const std::vector<float> samples =
      softChord(static_cast<std::uint32_t>(movie.scene), soundSampleCount(movie));
  if (movie.sound == SoundCodec::linearPcm) tracks.push_back(linearPcmTrack(samples));
  if (movie.sound == SoundCodec::aac) {
    model::Result<MovieTrack> sound = aacTrack(movie, samples);
    if (!sound) return sound.error();
    tracks.push_back(std::move(*sound));
  }
  addMetadataTracks(tracks, movie);
  return movieFile(movie, tracks);
}

}  // namespace samples
