// SPDX-License-Identifier: MIT
//
// The photos of the library, read by the project's own readers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "media/image/image_source.h"
#include "samples/formats/raw_files.h"
#include "samples/library/items.h"
#include "samples/metadata/camera_notes.h"
#include "samples/metadata/date_text.h"
#include "tests/samples/sample_files.h"

namespace samples {
namespace {

using model::Dictionary;
using model::Value;

Dictionary propertiesOf(const char* path) {
  const auto source = io::FileSource::open(libraryPath(path));
  if (!source) {
    ADD_FAILURE() << path << ": " << source.error().reason;
    return {};
  }
  const auto properties = media::image::copyProperties(**source);
  if (properties && *properties) return **properties;
  ADD_FAILURE() << path << ": " << (properties ? "no image" : properties.error().reason);
  return {};
}

Dictionary sectionOf(const Dictionary& properties, const char* name) {
  const Value* section = find(properties, name);
  return section != nullptr && section->asDictionary() != nullptr ? *section->asDictionary()
                                                                  : Dictionary{};
}

// The value under a key; null where there is none.
Value valueOf(const Dictionary& dictionary, const char* key) {
  const Value* value = find(dictionary, key);
  return value != nullptr ? *value : Value{};
}

double realOf(const Dictionary& dictionary, const char* key) {
  const Value value = valueOf(dictionary, key);
  if (const std::int64_t* integer = value.asInteger()) return static_cast<double>(*integer);
  return value.asReal() != nullptr ? *value.asReal() : std::nan("");
}

bool isPhone(const Photo& photo) {
  return photo.camera != nullptr && photo.camera->makerNoteVersion > 0;
}

TEST(PhotoReadBack, FindsTheStoredSizeOfEveryPhoto) {
  for (const Photo& photo : allPhotos()) {
    SCOPED_TRACE(photo.path);
    const Dictionary properties = propertiesOf(photo.path);
    const bool turned = photo.orientation >= 5;
    EXPECT_EQ(valueOf(properties, "PixelWidth"), Value(turned ? photo.height : photo.width));
    EXPECT_EQ(valueOf(properties, "PixelHeight"), Value(turned ? photo.width : photo.height));
    EXPECT_EQ(valueOf(properties, "Depth"), Value(photo.format == PhotoFormat::tiff ? 16 : 8));
    EXPECT_EQ(valueOf(properties, "ColorModel"),
              Value(photo.look == Look::grayscale ? "Gray" : "RGB"));
  }
}

TEST(PhotoReadBack, FindsOrientationMakeAndCaptureTime) {
  for (const Photo& photo : allPhotos()) {
    if (photo.camera == nullptr || photo.format == PhotoFormat::bmp) continue;
    SCOPED_TRACE(photo.path);
    const Dictionary properties = propertiesOf(photo.path);
    const Dictionary tiff = sectionOf(properties, "{TIFF}");
    EXPECT_EQ(valueOf(properties, "Orientation"), Value(photo.orientation));
    EXPECT_EQ(valueOf(tiff, "Make"), Value(photo.camera->make));
    EXPECT_EQ(valueOf(tiff, "Model"), Value(photo.camera->model));
    EXPECT_EQ(valueOf(sectionOf(properties, "{Exif}"), "DateTimeOriginal"),
              Value(exifTime(photo.taken)));
    EXPECT_DOUBLE_EQ(realOf(properties, "DPIWidth"), photo.density);
  }
}

TEST(PhotoReadBack, FindsCameraSettings) {
  for (const Photo& photo : allPhotos()) {
    if (photo.camera == nullptr || photo.camera->focalLength <= 0) continue;
    SCOPED_TRACE(photo.path);
    const Dictionary exif = sectionOf(propertiesOf(photo.path), "{Exif}");
    const Rational& time = photo.exposure.time;
    EXPECT_DOUBLE_EQ(realOf(exif, "ExposureTime"),
                     static_cast<double>(time.numerator) / static_cast<double>(time.denominator));
    EXPECT_NEAR(realOf(exif, "FNumber"), photo.camera->fNumber, 1e-6);
    EXPECT_NEAR(realOf(exif, "FocalLength"), photo.camera->focalLength, 1e-6);
    EXPECT_EQ(valueOf(exif, "ISOSpeedRatings"), Value(model::Array{photo.exposure.iso}));
    EXPECT_EQ(valueOf(exif, "Flash"), Value(photo.exposure.flash));
    EXPECT_EQ(valueOf(exif, "LensModel"), Value(photo.camera->lensModel));
  }
}

TEST(PhotoReadBack, FindsPositionsInAllQuartersOfTheEarth) {
  for (const Photo& photo : allPhotos()) {
    if (photo.camera == nullptr) continue;
    SCOPED_TRACE(photo.path);
    const Dictionary gps = sectionOf(propertiesOf(photo.path), "{GPS}");
    EXPECT_EQ(gps.empty(), photo.place == nullptr);
    if (photo.place == nullptr) continue;
    const Place& place = *photo.place;
    EXPECT_EQ(valueOf(gps, "LatitudeRef"), Value(place.latitude < 0 ? "S" : "N"));
    EXPECT_EQ(valueOf(gps, "LongitudeRef"), Value(place.longitude < 0 ? "W" : "E"));
    EXPECT_EQ(valueOf(gps, "AltitudeRef"), Value(place.altitude < 0 ? 1 : 0));
    EXPECT_NEAR(realOf(gps, "Latitude"), std::abs(place.latitude), 2e-6);
    EXPECT_NEAR(realOf(gps, "Longitude"), std::abs(place.longitude), 2e-6);
    EXPECT_NEAR(realOf(gps, "Altitude"), std::abs(place.altitude), 1e-3);
  }
}

TEST(PhotoReadBack, FindsTheMakerNoteOfPhonesOnly) {
  for (const Photo& photo : allPhotos()) {
    SCOPED_TRACE(photo.path);
    const Dictionary note = sectionOf(propertiesOf(photo.path), "{MakerApple}");
    EXPECT_EQ(note.empty(), !isPhone(photo));
    if (!isPhone(photo)) continue;
    EXPECT_EQ(valueOf(note, "1"), Value(photo.camera->makerNoteVersion));
    const Value matrix = valueOf(note, "2");
    ASSERT_NE(matrix.asData(), nullptr);
    EXPECT_EQ(matrix.asData()->size(), 512u);
    const Value runTime = valueOf(note, "3");
    ASSERT_NE(runTime.asDictionary(), nullptr);
    EXPECT_EQ(valueOf(*runTime.asDictionary(), "timescale"), Value(1000000000));
    const Value acceleration = valueOf(note, "8");
    ASSERT_NE(acceleration.asArray(), nullptr);
    EXPECT_EQ(acceleration.asArray()->size(), 3u);
    EXPECT_EQ(valueOf(note, "17"), photo.livePhoto != nullptr ? Value(photo.livePhoto) : Value());
    EXPECT_EQ(valueOf(note, "11"), photo.burst != nullptr ? Value(photo.burst) : Value());
  }
}

TEST(PhotoReadBack, FindsLensAndBodyInTheNotesOfCameras) {
  for (const Photo& photo : allPhotos()) {
    if (photo.camera == nullptr || photo.camera->lensId == 0) continue;
    SCOPED_TRACE(photo.path);
    const Camera& camera = *photo.camera;
    const bool isNikon = std::string_view(camera.make) != "Canon";
    const Dictionary aux = sectionOf(propertiesOf(photo.path), "{ExifAux}");
    EXPECT_EQ(valueOf(aux, "LensID"), Value(camera.lensId));
    EXPECT_EQ(valueOf(aux, "LensModel"), Value(camera.lensModel));
    const std::string canonSerial = std::to_string(canonSerialNumber(camera));
    EXPECT_EQ(valueOf(aux, "SerialNumber"),
              Value(isNikon ? std::string(camera.bodySerial) : canonSerial));
    EXPECT_EQ(valueOf(aux, "ImageNumber"), isNikon ? Value(shutterCount(photo)) : Value());
    EXPECT_DOUBLE_EQ(realOf(aux, "FlashCompensation"), 0);
    const Value info = valueOf(aux, "LensInfo");
    ASSERT_NE(info.asArray(), nullptr);
    EXPECT_EQ(info.asArray()->front(), Value(camera.lensRange[0]));
  }
}

TEST(PhotoReadBack, FindsWhereItWasTakenAmongTheExtensions) {
  for (const Photo& photo : allPhotos()) {
    if (!photo.namesPlace) continue;
    SCOPED_TRACE(photo.path);
    const Dictionary iptc = sectionOf(propertiesOf(photo.path), "{IPTC}");
    const Value created = valueOf(iptc, "LocationCreated");
    ASSERT_NE(created.asArray(), nullptr);
    ASSERT_NE(created.asArray()->front().asDictionary(), nullptr);
    EXPECT_EQ(valueOf(*created.asArray()->front().asDictionary(), "City"),
              Value(photo.place->city));
  }
}

TEST(PhotoReadBack, FindsPlaceNamesWhereTheyAreGiven) {
  for (const Photo& photo : allPhotos()) {
    if (!photo.namesPlace) continue;
    SCOPED_TRACE(photo.path);
    const Dictionary iptc = sectionOf(propertiesOf(photo.path), "{IPTC}");
    EXPECT_EQ(valueOf(iptc, "City"), Value(photo.place->city));
    EXPECT_EQ(valueOf(iptc, "Province/State"), Value(photo.place->province));
    EXPECT_EQ(valueOf(iptc, "Country/PrimaryLocationName"), Value(photo.place->country));
  }
}

TEST(PhotoReadBack, FindsJfifOnlyWhereAComputerWroteIt) {
  for (const Photo& photo : allPhotos()) {
    if (photo.format != PhotoFormat::jpeg) continue;
    SCOPED_TRACE(photo.path);
    const Dictionary jfif = sectionOf(propertiesOf(photo.path), "{JFIF}");
    EXPECT_EQ(jfif.empty(), !photo.jfif);
    EXPECT_EQ(valueOf(jfif, "IsProgressive"),
              photo.look == Look::progressive ? Value(true) : Value());
  }
}

TEST(PhotoReadBack, FindsTheTilesAndTheProfileOfAPhonesHeic) {
  for (const Photo& photo : allPhotos()) {
    if (photo.format != PhotoFormat::heic) continue;
    SCOPED_TRACE(photo.path);
    const Dictionary properties = propertiesOf(photo.path);
    EXPECT_EQ(valueOf(properties, "ProfileName"), Value("Display P3"));
    EXPECT_EQ(valueOf(properties, "PrimaryImage"), Value(true));
    EXPECT_EQ(valueOf(sectionOf(properties, "{TIFF}"), "TileWidth"), Value(512));
  }
}

TEST(PhotoReadBack, FindsTransparencyAndTextsOfTheScreenshot) {
  const Dictionary properties = propertiesOf("100APPLE/IMG_0006.PNG");
  EXPECT_EQ(valueOf(properties, "HasAlpha"), Value(true));
  EXPECT_EQ(valueOf(sectionOf(properties, "{PNG}"), "Title"), Value("Weather this week"));
}

TEST(PhotoReadBack, FindsSizeDepthAndCameraOfEveryRawFile) {
  for (const RawFile& file : rawFiles()) {
    SCOPED_TRACE(file.name);
    io::MemorySource source(file.bytes);
    const auto found = media::image::copyProperties(source);
    ASSERT_TRUE(found && *found);
    const Dictionary& properties = **found;
    EXPECT_EQ(valueOf(properties, "PixelWidth"), Value(640));
    EXPECT_EQ(valueOf(properties, "PixelHeight"), Value(480));
    const std::string kind = file.name.substr(file.name.find('.') + 1);
    const bool hasDepth = kind != "crw" && kind != "x3f";
    const bool isEvenDepth = kind == "psd" || kind == "exr";
    EXPECT_EQ(valueOf(properties, "Depth"), hasDepth ? Value(isEvenDepth ? 16 : 14) : Value());
    if (kind == "exr") continue;
    EXPECT_EQ(valueOf(sectionOf(properties, "{TIFF}"), "Make"), Value("Sample"));
    EXPECT_EQ(valueOf(sectionOf(properties, "{Exif}"), "DateTimeOriginal"),
              Value("2019:05:04 12:30:00"));
  }
}

TEST(PhotoReadBack, FindsTheDelayOfTheAnimation) {
  const Dictionary gif = sectionOf(propertiesOf("Coast/Surf.gif"), "{GIF}");
  EXPECT_DOUBLE_EQ(realOf(gif, "DelayTime"), 0.12);
}

}  // namespace
}  // namespace samples
