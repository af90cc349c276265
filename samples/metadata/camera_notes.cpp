// SPDX-License-Identifier: MIT
#include "samples/metadata/camera_notes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace samples {

namespace {

// A focal length in steps of which 24 double it, from 5 mm on.
int focalLengthCode(double millimetres) {
  return static_cast<int>(std::lround(24 * std::log2(millimetres / 5)));
}

Bytes lensData(const Camera& camera) {
  Bytes data(15);
  const std::string_view version = "0101";
  std::copy(version.begin(), version.end(), data.begin());
  data[11] = static_cast<std::uint8_t>(camera.lensId);
  data[13] = static_cast<std::uint8_t>(focalLengthCode(camera.lensRange[0]));
  data[14] = static_cast<std::uint8_t>(focalLengthCode(camera.lensRange[1]));
  return data;
}

Directory nikonDirectory(const Photo& photo) {
  const Camera& camera = *photo.camera;
  const double(&range)[4] = camera.lensRange;
  Directory note;
  note.addUndefined(0x0001, "0210");
  note.addUndefined(0x0012, Bytes{0, 1, 6, 0});  // no flash compensation
  note.addText(0x001D, camera.bodySerial);
  note.addRational(0x0084, {approximated(range[0]), approximated(range[1]), approximated(range[2]),
                            approximated(range[3])});
  note.addUndefined(0x0098, lensData(camera));
  note.addLong(0x00A7, {shutterCount(photo)});
  return note;
}

}  // namespace

std::int64_t shutterCount(const Photo& photo) {
  return 8000 + photo.subsecond;
}

std::int64_t canonSerialNumber(const Camera& camera) {
  return std::strtoll(camera.bodySerial, nullptr, 10) % 1'000'000'000;
}

Bytes canonMakerNote(const Photo& photo) {
  const Camera& camera = *photo.camera;
  const std::int64_t shortest = std::lround(camera.lensRange[0]);
  const std::int64_t longest = std::lround(camera.lensRange[1]);
  Directory note;
  // Both tables begin with their size in bytes; the first has a unit a millimetre.
  note.addShort(
      0x0001,
      {52,      0,        0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, camera.lensId,
       longest, shortest, 1});
  note.addShort(0x0004, {32, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  note.addText(0x0007, camera.software);
  note.addText(0x0009, photo.author != nullptr ? photo.author : "");
  note.addLong(0x000C, {canonSerialNumber(camera)});
  note.addText(0x0095, camera.lensModel);
  ByteWriter out(ByteOrder::little);
  writeDirectory(out, note);
  out.text("II");
  out.u16(42);
  out.u32(0);
  return out.take();
}

Bytes nikonMakerNote(const Photo& photo) {
  ByteWriter out;
  out.text(std::string_view("Nikon\0\2\x10\0\0", 10));
  out.append(tiffBlock(ByteOrder::big, {nikonDirectory(photo)}));
  return out.take();
}

}  // namespace samples
