// SPDX-License-Identifier: MIT
//
// The three directories of a camera's file, put together from one row of the library: what Exif
// requires, then what phones or what cameras with lenses add. Exposure is given three times, as
// time and aperture and in the units of the additive system, which are computed from the first two.
#include "samples/metadata/camera_exif.h"

#include <cmath>
#include <string>
#include <string_view>

#include "samples/metadata/camera_notes.h"
#include "samples/metadata/date_text.h"

namespace samples {

namespace {

using Tags = std::initializer_list<std::uint16_t>;

bool isPhone(const Camera& camera) {
  return camera.makerNoteVersion > 0;
}

// The units of the additive system of photographic exposure (Exif 2.31, annex C).
double timeValue(const Photo& photo) {
  const Rational& time = photo.exposure.time;
  return std::log2(static_cast<double>(time.denominator) / static_cast<double>(time.numerator));
}
double apertureValue(const Photo& photo) {
  return 2 * std::log2(photo.camera->fNumber);
}
double brightnessValue(const Photo& photo) {
  return apertureValue(photo) + timeValue(photo) - std::log2(photo.exposure.iso / 3.125);
}

void addExposure(Directory& exif, const Photo& photo) {
  const Exposure& exposure = photo.exposure;
  exif.addRational(0x829A, {exposure.time});
  exif.addRational(0x829D, {approximated(photo.camera->fNumber)});
  exif.addShort(0x8822, {exposure.program});
  exif.addShort(0x8827, {exposure.iso});
  exif.addSignedRational(0x9201, {approximated(timeValue(photo))});
  exif.addRational(0x9202, {approximated(apertureValue(photo))});
  exif.addSignedRational(0x9204, {approximated(exposure.bias, 10)});
  exif.addShort(0x9207, {exposure.metering});
  exif.addShort(0x9209, {exposure.flash});
  exif.addRational(0x920A, {approximated(photo.camera->focalLength)});
  exif.addShort(0xA402, {exposure.program == 1 ? 1 : 0});
  exif.addShort(0xA403, {exposure.whiteBalance});
  exif.addShort(0xA405, {photo.camera->focalLength35});
  exif.addShort(0xA406, {exposure.sceneCapture});
  if (exposure.customRendered != 0) exif.addShort(0xA401, {exposure.customRendered});
}

void addLens(Directory& exif, const Camera& camera) {
  const double(&range)[4] = camera.lensRange;
  if (range[0] > 0)
    exif.addRational(0xA432, {approximated(range[0]), approximated(range[1]),
                              approximated(range[2]), approximated(range[3])});
  if (camera.lensMake != nullptr) exif.addText(0xA433, camera.lensMake);
  if (camera.lensModel != nullptr) exif.addText(0xA434, camera.lensModel);
  if (camera.bodySerial != nullptr) exif.addText(0xA431, camera.bodySerial);
  if (camera.lensSerial != nullptr) exif.addText(0xA435, camera.lensSerial);
}

void addTimes(Directory& exif, const Photo& photo) {
  exif.addText(0x9003, exifTime(photo.taken));
  exif.addText(0x9004, exifTime(photo.taken));
  if (photo.subsecond == 0) return;
  const std::string subsecond = threeDigits(photo.subsecond);
  if (!isPhone(*photo.camera)) exif.addText(0x9290, subsecond);
  exif.addText(0x9291, subsecond);
  exif.addText(0x9292, subsecond);
}

void addPhoneTags(Directory& exif, const Photo& photo, int width, int height,
                  const BrightnessGrid& grid) {
  exif.addUndefined(0x9000, "0221");
  exif.addSignedRational(0x9203, {approximated(brightnessValue(photo))});
  exif.addShort(0x9214, {width / 2 - 1, height / 2 - 1, width * 11 / 20, height * 11 / 25});
  exif.addUndefined(0x927C, phoneMakerNote(photo, grid));
  exif.addShort(0xA217, {2});
  exif.addUndefined(0xA301, Bytes{1});
  exif.addShort(0xA001, {photo.format == PhotoFormat::png ? 1 : 65535});
}

Bytes cameraNote(const Photo& photo) {
  const bool isCanon = std::string_view(photo.camera->make) == "Canon";
  return isCanon ? canonMakerNote(photo) : nikonMakerNote(photo);
}

// What cameras with a system of lenses add.
void addCameraTags(Directory& exif, const Photo& photo) {
  exif.addUndefined(0x9000, "0231");
  if (photo.camera->lensId != 0) exif.addUndefined(0x927C, cameraNote(photo));
  exif.addShort(0x8830, {2});
  exif.addLong(0x8832, {photo.exposure.iso});
  exif.addRational(0x9205,
                   {approximated(2 * std::log2(std::max(photo.camera->lensRange[2], 1.0)))});
  exif.addShort(0x9208, {photo.exposure.lightSource});
  Bytes comment(8 + 40, ' ');
  constexpr std::string_view charset{"ASCII\0\0\0", 8};
  std::copy(charset.begin(), charset.end(), comment.begin());
  exif.addUndefined(0x9286, std::move(comment));
  const int minutes = photo.place != nullptr ? photo.place->utcOffset : 0;
  for (const std::uint16_t tag : Tags{0x9010, 0x9011, 0x9012})
    exif.addText(tag, zoneText(minutes, ":"));
  exif.addRational(0xA20E, {{5472000, 1439}});
  exif.addRational(0xA20F, {{3648000, 959}});
  exif.addShort(0xA210, {2});
  exif.addUndefined(0xA300, Bytes{3});
  exif.addUndefined(0xA301, Bytes{1});
  exif.addRational(0xA404, {{1, 1}});
  for (const std::uint16_t tag : Tags{0xA408, 0xA409, 0xA40A}) exif.addShort(tag, {0});
  exif.addShort(0xA001, {1});
  if (photo.format == PhotoFormat::tiff) return;
  Directory interoperability;
  interoperability.addText(1, "R98");
  interoperability.addUndefined(2, "0100");
  exif.addDirectory(0xA005, std::move(interoperability));
}

Directory exifDirectory(const Photo& photo, int width, int height, const BrightnessGrid& grid) {
  Directory exif;
  const Camera& camera = *photo.camera;
  addTimes(exif, photo);
  if (photo.format != PhotoFormat::tiff) exif.addUndefined(0x9101, Bytes{1, 2, 3, 0});
  exif.addUndefined(0xA000, "0100");
  exif.addLong(0xA002, {width});
  exif.addLong(0xA003, {height});
  if (camera.focalLength <= 0) {
    exif.addUndefined(0x9000, "0230");
    exif.addShort(0xA001, {1});
    exif.addUndefined(0xA300, Bytes{2});
    return exif;
  }
  addExposure(exif, photo);
  addLens(exif, camera);
  if (isPhone(camera))
    addPhoneTags(exif, photo, width, height, grid);
  else
    addCameraTags(exif, photo);
  return exif;
}

void addDegrees(Directory& gps, std::uint16_t tag, double degrees) {
  const auto hundredths = static_cast<std::int64_t>(std::llround(std::abs(degrees) * 360000));
  gps.addRational(
      tag, {{hundredths / 360000, 1}, {hundredths / 6000 % 60, 1}, {hundredths % 6000, 100}});
}

Directory gpsDirectory(const Photo& photo) {
  const Place& place = *photo.place;
  const model::CivilTime utc = model::civilTimeInUtc(momentOf(photo.taken, &place));
  Directory gps;
  gps.addText(1, place.latitude < 0 ? "S" : "N");
  addDegrees(gps, 2, place.latitude);
  gps.addText(3, place.longitude < 0 ? "W" : "E");
  addDegrees(gps, 4, place.longitude);
  gps.addByte(5, {place.altitude < 0 ? 1 : 0});
  gps.addRational(6, {approximated(std::abs(place.altitude))});
  gps.addRational(7,
                  {{utc.hour, 1}, {utc.minute, 1}, {utc.second * 100 + photo.subsecond / 10, 100}});
  gps.addText(0x1D, dateText(utc, ":"));
  if (!isPhone(*photo.camera)) {
    gps.addByte(0, {2, 3, 0, 0});
    gps.addText(8, "09");
    gps.addText(9, "A");
    gps.addText(0x0A, "3");
    gps.addRational(0x0B, {{14, 10}});
    gps.addText(0x12, "WGS-84");
    gps.addUndefined(0x1B, std::string_view("ASCII\0\0\0GPS", 11));
    return gps;
  }
  gps.addText(0x0C, "K");
  gps.addRational(0x0D, {approximated(0.04 * (photo.subsecond % 17))});
  for (const std::uint16_t reference : Tags{0x10, 0x17}) gps.addText(reference, "T");
  for (const std::uint16_t bearing : Tags{0x11, 0x18})
    gps.addRational(bearing, {approximated(photo.direction)});
  gps.addRational(0x1F, {approximated(5 + photo.subsecond % 12)});
  return gps;
}

}  // namespace

ByteOrder byteOrderOf(const Camera& camera) {
  return isPhone(camera) ? ByteOrder::big : ByteOrder::little;
}

Directory photoDirectory(const Photo& photo, int width, int height, const BrightnessGrid& grid) {
  const Camera& camera = *photo.camera;
  Directory root;
  if (photo.caption != nullptr && !isPhone(camera)) root.addText(0x010E, photo.caption);
  root.addText(0x010F, camera.make);
  root.addText(0x0110, camera.model);
  if (photo.orientation > 0) root.addShort(0x0112, {photo.orientation});
  root.addRational(0x011A, {{photo.density, 1}});
  root.addRational(0x011B, {{photo.density, 1}});
  root.addShort(0x0128, {2});
  if (camera.software != nullptr) root.addText(0x0131, camera.software);
  root.addText(0x0132, exifTime(photo.taken));
  if (photo.author != nullptr) {
    root.addText(0x013B, photo.author);
    root.addText(0x8298, std::string("Public domain, ") + photo.author);
  }
  if (photo.format != PhotoFormat::tiff && photo.format != PhotoFormat::png)
    root.addShort(0x0213, {1});
  root.addDirectory(0x8769, exifDirectory(photo, width, height, grid));
  if (photo.place != nullptr) root.addDirectory(0x8825, gpsDirectory(photo));
  return root;
}

Directory thumbnailDirectory(Bytes jpeg) {
  Directory thumbnail;
  thumbnail.addShort(0x0103, {6});
  thumbnail.addRational(0x011A, {{72, 1}});
  thumbnail.addRational(0x011B, {{72, 1}});
  thumbnail.addShort(0x0128, {2});
  thumbnail.addAttachment(0x0201, 0x0202, std::move(jpeg));
  return thumbnail;
}

}  // namespace samples
