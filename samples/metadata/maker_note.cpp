// SPDX-License-Identifier: MIT
#include "samples/metadata/maker_note.h"

#include <cmath>
#include <string_view>

#include "model/value.h"
#include "samples/metadata/property_list_writer.h"
#include "samples/pictures/noise.h"

namespace samples {

namespace {

// A number for what only the phone could know, repeatable from the file's name.
std::uint32_t seedOf(std::string_view path) {
  std::uint32_t seed = 2166136261u;
  for (const char character : path)
    seed = (seed ^ static_cast<unsigned char>(character)) * 16777619u;
  return seed;
}

std::int64_t whole(float value) {
  return std::lround(value);
}

// Where gravity points for a phone that is held as the orientation says, in g.
struct Gravity {
  double x, y;
};

Gravity gravityFor(int orientation) {
  switch (orientation) {
    case 3:
      return {0.9912, 0.0213};
    case 6:
      return {-0.0187, -0.9874};
    case 8:
      return {0.0142, 0.9905};
    default:
      return {-0.9934, 0.0242};
  }
}

// Seconds since the phone was started, as a media time inside a property list.
Bytes runTime(Random& random) {
  const auto seconds = static_cast<std::int64_t>(random.between(20000, 600000));
  const auto fraction = static_cast<std::int64_t>(random.unit() * 1e9f);
  return binaryPropertyList(model::Dictionary{{"epoch", 0},
                                              {"flags", 1},
                                              {"timescale", 1000000000},
                                              {"value", seconds * 1000000000 + fraction}});
}

Bytes exposureMatrix(const BrightnessGrid& grid) {
  model::Data data;
  for (const std::uint16_t value : grid) {
    data.push_back(static_cast<std::uint8_t>(value & 0xFF));
    data.push_back(static_cast<std::uint8_t>(value >> 8));
  }
  return binaryPropertyList(data);
}

std::int64_t meanBrightness(const BrightnessGrid& grid) {
  std::int64_t sum = 0;
  for (const std::uint16_t value : grid) sum += value;
  return sum / 256 / 256;
}

Directory noteDirectory(const Photo& photo, const BrightnessGrid& grid) {
  Random random(seedOf(photo.path));
  Directory note;
  note.addSignedLong(1, {photo.camera->makerNoteVersion});
  note.addUndefined(2, exposureMatrix(grid));
  note.addUndefined(3, runTime(random));
  note.addSignedLong(4, {1});                                // exposure is steady
  note.addSignedLong(5, {whole(random.between(150, 190))});  // exposure aimed at
  note.addSignedLong(6, {meanBrightness(grid)});             // exposure reached
  note.addSignedLong(7, {1});                                // focus is steady
  const auto [x, y] = gravityFor(photo.orientation);
  const double z = static_cast<double>(random.between(-0.12f, 0.06f));
  note.addSignedRational(8, {approximated(x), approximated(y), approximated(z)});
  if (photo.exposure.customRendered == 3) note.addSignedLong(10, {3});
  if (photo.burst != nullptr) note.addText(11, photo.burst);
  note.addSignedRational(12, {approximated(static_cast<double>(random.between(0.2f, 20))),
                              approximated(static_cast<double>(random.between(21, 60)))});
  note.addSignedLong(13, {whole(random.between(-40, 40))});
  note.addSignedLong(14, {photo.orientation == 6 ? 4 : 0});
  note.addSignedLong(15, {2});  // the lens is steadied
  note.addSignedLong(16, {1});
  if (photo.livePhoto != nullptr) note.addText(17, photo.livePhoto);
  note.addSignedLong(20, {photo.exposure.customRendered == 3 ? 2 : 10});
  if (photo.exposure.customRendered == 3) note.addText(21, "7C1F2A9E-40B3-4D68-9A55-31E0B7D2C846");
  note.addSignedLong(23, {photo.livePhoto != nullptr ? 13639680 : 8192});
  note.addSignedLong(25, {photo.exposure.customRendered == 3 ? 128 : 2});
  note.addText(26, photo.width * photo.height > 2500000 ? "q900n" : "q825s");
  note.addSignedLong(31, {0});
  note.addSignedRational(33, {{0, 1}});
  note.addSignedLong(35, {whole(random.between(60, 180)), 268435697});
  note.addSignedLong(37, {0});
  note.addSignedLong(38, {3});
  note.addSignedRational(39, {approximated(static_cast<double>(random.between(24, 62)))});
  return note;
}

}  // namespace

BrightnessGrid brightnessGrid(const Picture& picture) {
  const Picture small = reduced(picture, 16, 16);
  BrightnessGrid grid{};
  for (int index = 0; index < 256; ++index)
    grid[static_cast<std::size_t>(index)] =
        static_cast<std::uint16_t>(quantized(luminance(small.at(index % 16, index / 16)), 65535));
  return grid;
}

Bytes phoneMakerNote(const Photo& photo, const BrightnessGrid& grid) {
  ByteWriter out(ByteOrder::big);
  out.text("Apple iOS");
  out.u8(0);
  out.u16(1);
  out.text("MM");
  writeDirectory(out, noteDirectory(photo, grid));
  return out.take();
}

}  // namespace samples
