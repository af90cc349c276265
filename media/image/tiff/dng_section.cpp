// SPDX-License-Identifier: MIT
#include "media/image/tiff/dng_section.h"

namespace media::image {

namespace {

constexpr std::uint16_t dngVersion = 0xC612;

constexpr TagRow dngRows[] = {
    {dngVersion, "DNGVersion", integerArray},
    {0xC613, "DNGBackwardVersion", integerArray},
    {0xC614, "UniqueCameraModel", textValue},
    {0xC615, "LocalizedCameraModel", textValue},
    {0xC616, "CFAPlaneColor", integerValue},
    {0xC617, "CFALayout", integerValue},
    {0xC619, "BlackLevelRepeatDim", integerValue},
    {0xC61A, "BlackLevel", integerValue},
    {0xC61D, "WhiteLevel", integerValue},
    {0xC61E, "DefaultScale", realValue},
    {0xC61F, "DefaultCropOrigin", integerValue},
    {0xC620, "DefaultCropSize", integerValue},
    {0xC621, "ColorMatrix1", realValue},
    {0xC622, "ColorMatrix2", realValue},
    {0xC623, "CameraCalibration1", realValue},
    {0xC624, "CameraCalibration2", realValue},
    {0xC625, "ReductionMatrix1", realValue},
    {0xC626, "ReductionMatrix2", realValue},
    {0xC627, "AnalogBalance", realValue},
    {0xC628, "AsShotNeutral", realValue},
    {0xC629, "AsShotWhiteXY", realValue},
    {0xC62A, "BaselineExposure", realValue},
    {0xC62B, "BaselineNoise", realValue},
    {0xC62C, "BaselineSharpness", realValue},
    {0xC62D, "BayerGreenSplit", integerValue},
    {0xC62E, "LinearResponseLimit", realValue},
    {0xC62F, "CameraSerialNumber", textValue},
    {0xC630, "LensInfo", realValue},
    {0xC631, "ChromaBlurRadius", realValue},
    {0xC632, "AntiAliasStrength", realValue},
    {0xC633, "ShadowScale", realValue},
    {0xC635, "MakerNoteSafety", integerValue},
    {0xC65A, "CalibrationIlluminant1", integerValue},
    {0xC65B, "CalibrationIlluminant2", integerValue},
    {0xC65C, "BestQualityScale", realValue},
    {0xC68B, "OriginalRawFileName", textValue},
    {0xC68D, "ActiveArea", integerValue},
    {0xC68E, "MaskedAreas", integerValue},
    {0xC690, "AsShotPreProfileMatrix", realValue},
    {0xC692, "CurrentPreProfileMatrix", realValue},
    {0xC6BF, "ColorimetricReference", integerValue},
    {0xC6F3, "CameraCalibrationSignature", textValue},
    {0xC6F4, "ProfileCalibrationSignature", textValue},
    {0xC6F6, "AsShotProfileName", textValue},
    {0xC6F7, "NoiseReductionApplied", realValue},
    {0xC6F8, "ProfileName", textValue},
    {0xC6F9, "ProfileHueSatMapDims", integerValue},
    {0xC6FD, "ProfileEmbedPolicy", integerValue},
    {0xC6FE, "ProfileCopyright", textValue},
    {0xC714, "ForwardMatrix1", realValue},
    {0xC715, "ForwardMatrix2", realValue},
    {0xC716, "PreviewApplicationName", textValue},
    {0xC717, "PreviewApplicationVersion", textValue},
    {0xC718, "PreviewSettingsName", textValue},
    {0xC71A, "PreviewColorSpace", integerValue},
    {0xC71B, "PreviewDateTime", textValue},
    {0xC71E, "SubTileBlockSize", integerValue},
    {0xC71F, "RowInterleaveFactor", integerValue},
    {0xC725, "ProfileLookTableDims", integerValue},
    {0xC761, "NoiseProfile", realValue},
    {0xC791, "OriginalDefaultFinalSize", integerValue},
    {0xC792, "OriginalBestQualityFinalSize", integerValue},
    {0xC793, "OriginalDefaultCropSize", integerValue},
    {0xC7A3, "ProfileHueSatMapEncoding", integerValue},
    {0xC7A4, "ProfileLookTableEncoding", integerValue},
    {0xC7A5, "BaselineExposureOffset", realValue},
    {0xC7A6, "DefaultBlackRender", integerValue},
    {0xC7A8, "RawToPreviewGain", realValue},
    {0xC7B5, "DefaultUserCrop", realValue},
};
static_assert(tagsAscend(dngRows));

}  // namespace

std::span<const TagRow> dngTags() {
  return dngRows;
}

void readDngSection(TiffStructure& structure, const Ifd& first, const Ifd& image,
                    model::Dictionary& properties) {
  if (!first.find(dngVersion)) return;
  readTags(structure, image, dngRows, "{DNG}", properties);
  if (&image != &first) readTags(structure, first, dngRows, "{DNG}", properties);
}

}  // namespace media::image
