// SPDX-License-Identifier: MIT
//
// What the library holds, as data: one row a file.
#pragma once

#include <cstdint>

#include "model/civil_time.h"
#include "samples/metadata/tiff_block.h"
#include "samples/pictures/scenes.h"

namespace samples {

// Texts are null where there is none.
struct Camera {
  const char* make = nullptr;
  const char* model = nullptr;
  const char* software = nullptr;
  const char* lensMake = nullptr;
  const char* lensModel = nullptr;
  double focalLength =
      0;  // millimetres; 0 for a device without a lens of its own, such as a scanner
  int focalLength35 = 0;  // as on a 35 mm film
  double fNumber = 0;
  double lensRange[4] = {};  // shortest and longest focal length, f-number at each; zeros for none
  int makerNoteVersion = 0;  // of the phone's maker note; 0 for a camera that is no phone
  const char* bodySerial = nullptr;
  const char* lensSerial = nullptr;
  int lensId = 0;  // in the numbering of the maker; 0 for a maker whose notes are not written
};

struct Place {
  const char* spot = nullptr;  // a part of the city
  const char* city = nullptr;
  const char* province = nullptr;
  const char* country = nullptr;
  const char* countryCode = nullptr;  // three letters, ISO 3166
  double latitude = 0;                // degrees, north positive
  double longitude = 0;               // degrees, east positive
  double altitude = 0;                // metres above sea level
  int utcOffset = 0;                  // minutes that clocks are ahead of UTC
};

struct Exposure {
  Rational time = {1, 125};  // seconds
  int iso = 100;
  double bias = 0;  // exposure compensation, in stops
  int program = 2;
  int metering = 5;
  int flash = 16;  // off, did not fire
  int lightSource = 0;
  int whiteBalance = 0;
  int sceneCapture = 0;
  int customRendered = 0;  // the phone: 3 HDR, 6 panorama; 0 not written
};

enum class PhotoFormat {
  jpeg,
  heic,          // laid out as a phone does: a grid of tiles and a thumbnail
  computerHeic,  // one picture, written by a library
  png,
  gif,
  tiff,
  bmp,
};

enum class Look { plain, progressive, grayscale };

// The fields stand in the order in which a row is best read, not the tightest one.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct Photo {
  const char* path = nullptr;  // below the library's folder
  PhotoFormat format = PhotoFormat::jpeg;
  Scene scene = Scene::fjord;
  int width = 1600;  // as displayed, after the orientation
  int height = 1200;
  int orientation = 1;             // EXIF, 1 to 8; 0 writes none
  const Camera* camera = nullptr;  // null: no Exif at all
  const Place* place = nullptr;    // null: no position
  model::CivilTime taken = {};     // clock time where it was taken
  int subsecond = 0;               // milliseconds
  Exposure exposure = {};
  double direction = 0;  // degrees from true north
  int density = 72;      // dots an inch
  Look look = Look::plain;
  bool jfif = false;            // a JPEG with the header that computers write
  bool exifLast = false;        // a HEIC whose Exif follows the pictures
  const char* burst = nullptr;  // identifiers, upper-case UUIDs
  const char* livePhoto = nullptr;
  const char* title = nullptr;
  const char* caption = nullptr;
  const char* keywords = nullptr;  // separated by commas
  const char* author = nullptr;
  bool namesPlace = false;  // IPTC and XMP carry the names of the place
  int rating = 0;           // stars; 0 for none
};

enum class MovieBrand {
  quickTime,  // the phone's camera: "moov" after "mdat", keys under moov/meta
  android,    // another maker's phone: MP4, position in user data
  exported,   // an editing program: MP4, "moov" before "mdat", iTunes-style tags
  sequence,   // images in a row, in the manner of HEIC
};

enum class VideoCodec { h264, hevc };
enum class SoundCodec { none, aac, linearPcm };

// The fields stand in the order in which a row is best read, not the tightest one.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct Movie {
  const char* path = nullptr;
  MovieBrand brand = MovieBrand::quickTime;
  VideoCodec codec = VideoCodec::h264;
  SoundCodec sound = SoundCodec::aac;
  Scene scene = Scene::surf;
  int width = 1280;  // as coded, before the rotation
  int height = 720;
  int rotation = 0;  // degrees clockwise to display it upright: 0, 90, 180, 270
  int framesPerSecond = 30;
  int frames = 60;
  const Camera* camera = nullptr;
  const Place* place = nullptr;
  bool hasAltitude = true;          // the position names one
  model::CivilTime taken = {};      // clock time where it was taken
  const char* livePhoto = nullptr;  // identifier shared with the photo
  const char* title = nullptr;
  std::uint64_t fileSize = 0;  // grown with a hole to this size; 0 for as it is
};

// The moment of a clock time at a place (UTC where there is none).
inline model::Date momentOf(const model::CivilTime& taken, const Place* place) {
  model::Date moment = model::dateFromUtc(taken);
  if (place != nullptr) moment.secondsSince1970 -= place->utcOffset * 60.0;
  return moment;
}

}  // namespace samples
