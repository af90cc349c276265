// SPDX-License-Identifier: MIT
#include "media/image/tiff/exif_section.h"

#include "media/image/tiff/coded_text.h"

namespace media::image {

namespace {

// Four digits such as "0231" as numbers: 2, 3, 1. The first two digits are the major number; the
// last is left out where it is 0. Some writers store the numbers themselves instead of digits.
std::optional<model::Value> versionValue(const TiffField& field) {
  if (!isTextLike(field.type) || field.count < 4) return std::nullopt;
  int digits[4] = {};
  for (std::size_t index = 0; index < 4; ++index) {
    const int byte = field.bytes.bytes()[index];
    digits[index] = byte >= '0' && byte <= '9' ? byte - '0' : byte;
    if (digits[index] > 9) return std::nullopt;
  }
  model::Array version{digits[0] * 10 + digits[1], digits[2]};
  if (digits[3] != 0) version.emplace_back(digits[3]);
  return model::Value(std::move(version));
}

// Infinity is stored as the largest numerator and shown as -1.
std::optional<model::Value> distanceValue(const TiffField& field) {
  const auto ratio = field.fraction(0);
  if (ratio && field.type == FieldType::rational && ratio->numerator == 0xFFFFFFFF) {
    return model::Value(-1.0);
  }
  return realValue(field);
}

std::optional<model::Value> commentValue(const TiffField& field) {
  if (!isTextLike(field.type)) return std::nullopt;
  auto text = decodeCodedText(field.bytes, field.order);
  return text ? std::optional<model::Value>(*std::move(text)) : std::nullopt;
}

constexpr TagRow exifRows[] = {
    {0x829A, "ExposureTime", realValue},
    {0x829D, "FNumber", realValue},
    {0x8822, "ExposureProgram", integerValue},
    {0x8824, "SpectralSensitivity", textValue},
    {0x8827, "ISOSpeedRatings", integerArray},
    {0x8830, "SensitivityType", integerValue},
    {0x8831, "StandardOutputSensitivity", integerValue},
    {0x8832, "RecommendedExposureIndex", integerValue},
    {0x8833, "ISOSpeed", integerValue},
    {0x8834, "ISOSpeedLatitudeyyy", integerValue},
    {0x8835, "ISOSpeedLatitudezzz", integerValue},
    {0x9000, "ExifVersion", versionValue},
    {0x9003, "DateTimeOriginal", textValue},
    {0x9004, "DateTimeDigitized", textValue},
    {0x9010, "OffsetTime", textValue},
    {0x9011, "OffsetTimeOriginal", textValue},
    {0x9012, "OffsetTimeDigitized", textValue},
    {0x9101, "ComponentsConfiguration", integerArray},
    {0x9102, "CompressedBitsPerPixel", realValue},
    {0x9201, "ShutterSpeedValue", realValue},
    {0x9202, "ApertureValue", realValue},
    {0x9203, "BrightnessValue", realValue},
    {0x9204, "ExposureBiasValue", realValue},
    {0x9205, "MaxApertureValue", realValue},
    {0x9206, "SubjectDistance", distanceValue},
    {0x9207, "MeteringMode", integerValue},
    {0x9208, "LightSource", integerValue},
    {0x9209, "Flash", integerValue},
    {0x920A, "FocalLength", realValue},
    {0x9214, "SubjectArea", integerValue},
    {0x9286, "UserComment", commentValue},
    {0x9290, "SubsecTime", textValue},
    {0x9291, "SubsecTimeOriginal", textValue},
    {0x9292, "SubsecTimeDigitized", textValue},
    {0xA000, "FlashPixVersion", versionValue},
    {0xA001, "ColorSpace", integerValue},
    {0xA002, "PixelXDimension", integerValue},
    {0xA003, "PixelYDimension", integerValue},
    {0xA004, "RelatedSoundFile", textValue},
    {0xA20B, "FlashEnergy", realValue},
    {0xA20E, "FocalPlaneXResolution", realValue},
    {0xA20F, "FocalPlaneYResolution", realValue},
    {0xA210, "FocalPlaneResolutionUnit", integerValue},
    {0xA214, "SubjectLocation", integerValue},
    {0xA215, "ExposureIndex", realValue},
    {0xA217, "SensingMethod", integerValue},
    {0xA300, "FileSource", firstInteger},
    {0xA301, "SceneType", firstInteger},
    {0xA302, "CFAPattern", integerValue},
    {0xA401, "CustomRendered", integerValue},
    {0xA402, "ExposureMode", integerValue},
    {0xA403, "WhiteBalance", integerValue},
    {0xA404, "DigitalZoomRatio", realValue},
    {0xA405, "FocalLenIn35mmFilm", integerValue},
    {0xA406, "SceneCaptureType", integerValue},
    {0xA407, "GainControl", integerValue},
    {0xA408, "Contrast", integerValue},
    {0xA409, "Saturation", integerValue},
    {0xA40A, "Sharpness", integerValue},
    {0xA40C, "SubjectDistRange", integerValue},
    {0xA420, "ImageUniqueID", textValue},
    {0xA430, "CameraOwnerName", textValue},
    {0xA431, "BodySerialNumber", textValue},
    {0xA432, "LensSpecification", realValue},
    {0xA433, "LensMake", textValue},
    {0xA434, "LensModel", textValue},
    {0xA435, "LensSerialNumber", textValue},
    {0xA500, "Gamma", realValue},
};
static_assert(tagsAscend(exifRows));

}  // namespace

std::span<const TagRow> exifTags() {
  return exifRows;
}

void readExifSection(TiffStructure& structure, const Ifd& exif, model::Dictionary& properties) {
  readTags(structure, exif, exifRows, "{Exif}", properties);
}

}  // namespace media::image
