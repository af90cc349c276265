// SPDX-License-Identifier: MIT
//
// What building a report costs, without any file: nanoseconds a property.
#include <benchmark/benchmark.h>

#include "lumifact/report/data_parser.h"
#include "model/key_order.h"

namespace {

// A phone photo's properties, and as many plain ones in an unknown section as asked for.
model::Dictionary photoProperties(std::int64_t extra) {
  model::Dictionary exif = {{"ExposureTime", 1.0 / 120},
                            {"FNumber", 1.8},
                            {"Flash", 16},
                            {"FocalLength", 4.25},
                            {"MeteringMode", 5},
                            {"ColorSpace", 65535},
                            {"WhiteBalance", 0},
                            {"LensModel", "back camera 4.25mm f/1.8"},
                            {"BrightnessValue", 7.634914},
                            {"DateTimeOriginal", "2018:09:30 14:03:11"},
                            {"SubjectArea", model::Array{2015, 1511, 2217, 1330}},
                            {"ComponentsConfiguration", model::Array{1, 2, 3, 0}}};
  model::Dictionary gps = {{"Latitude", 48.8566},   {"LatitudeRef", "N"},    {"Longitude", 2.3522},
                           {"LongitudeRef", "E"},   {"Altitude", 35.2},      {"AltitudeRef", 0},
                           {"ImgDirection", 214.6}, {"ImgDirectionRef", "T"}};
  model::Dictionary tiff = {
      {"Make", "Maker"}, {"Model", "Camera 8"}, {"Orientation", 6}, {"XResolution", 72.0}};
  model::Dictionary maker;
  for (std::int64_t index = 0; index < extra; ++index) {
    maker[std::to_string(index)] = index % 2 == 0 ? model::Value(index) : model::Value(0.25);
  }
  return {{"ColorModel", "RGB"}, {"Depth", 8},         {"Orientation", 6},
          {"PixelHeight", 3024}, {"PixelWidth", 4032}, {"{Exif}", exif},
          {"{GPS}", gps},        {"{TIFF}", tiff},     {"{MakerApple}", maker}};
}

constexpr std::int64_t photoPropertyCount = 29;

void buildImageReport(benchmark::State& state) {
  const model::Dictionary original = photoProperties(state.range(0));
  while (state.KeepRunning()) {
    state.PauseTiming();
    model::Dictionary properties = original;
    state.ResumeTiming();
    std::optional<std::string> coordinates;
    benchmark::DoNotOptimize(lumifact::DataParser::parseDataToString(properties, coordinates));
  }
  const auto count = static_cast<double>(photoPropertyCount + state.range(0));
  state.counters["s/property"] = benchmark::Counter(
      count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(buildImageReport)->Arg(20)->Arg(1000)->Arg(100000);

}  // namespace
