// SPDX-License-Identifier: MIT
#include "samples/library/photo_file.h"

#include "samples/formats/bmp_file.h"
#include "samples/formats/gif_file.h"
#include "samples/formats/heic_file.h"
#include "samples/formats/jpeg_file.h"
#include "samples/formats/png_file.h"
#include "samples/formats/tiff_file.h"
#include "samples/metadata/camera_exif.h"
#include "samples/metadata/icc_profile.h"
#include "samples/metadata/iptc_writer.h"
#include "samples/metadata/xmp_writer.h"

namespace samples {

namespace {

Directory directoryOf(const Photo& photo, const Picture& stored) {
  return photoDirectory(photo, stored.width(), stored.height(), brightnessGrid(stored));
}

// The TIFF block that JPEG, HEIC and PNG embed; empty where the photo has no Exif.
Bytes exifBlock(const Photo& photo, const Picture& stored) {
  if (photo.camera == nullptr) return {};
  std::vector<Directory> directories = {directoryOf(photo, stored)};
  if (photo.format == PhotoFormat::jpeg) {
    const int width = stored.width() >= stored.height() ? 160 : 120;
    const Picture small = reduced(stored, width, 280 - width);
    directories.push_back(thumbnailDirectory(jpegFile(small, {.quality = 70}, {})));
  }
  return tiffBlock(byteOrderOf(*photo.camera), directories);
}

// Phones show more colours than sRGB has.
Bytes profileOf(const Photo& photo) {
  const bool phone = photo.camera != nullptr && photo.camera->makerNoteVersion > 0;
  return iccProfile(phone ? ColorSpace::displayP3 : ColorSpace::sRgb);
}

Bytes makeJpeg(const Photo& photo, const Picture& stored) {
  std::vector<JpegSegment> segments;
  if (photo.camera != nullptr) segments.push_back({1, exifSegment(exifBlock(photo, stored))});
  if (hasCaptions(photo)) {
    segments.push_back({13, photoshopSegment(iptcRecords(photo))});
    segments.push_back({1, xmpSegment(xmpPacket(photo))});
  }
  if (photo.look != Look::grayscale) segments.push_back({2, profileSegment(profileOf(photo))});
  return jpegFile(stored,
                  {.progressive = photo.look == Look::progressive,
                   .grayscale = photo.look == Look::grayscale,
                   .jfif = photo.jfif,
                   .density = photo.density},
                  segments);
}

HeicLook heicLook(const Photo& photo, const Picture& stored) {
  return {.orientation = photo.orientation,
          .exif = exifBlock(photo, stored),
          .xmp = hasCaptions(photo) ? xmpPacket(photo) : "",
          .profile = profileOf(photo),
          .exifLast = photo.exifLast};
}

Bytes makePng(const Photo& photo, const Picture& stored) {
  PngLook look{.density = photo.density,
               .changed = model::civilTimeInUtc(momentOf(photo.taken, photo.place))};
  look.exif = exifBlock(photo, stored);
  if (photo.scene == Scene::weatherScreen) look.cornerRadius = 0.035f;
  look.gammaAndPrimaries = photo.scene != Scene::weatherScreen;
  if (photo.title != nullptr) look.texts.push_back({"Title", photo.title});
  if (photo.author != nullptr) look.texts.push_back({"Author", photo.author});
  if (photo.caption != nullptr) look.texts.push_back({"Description", photo.caption});
  look.texts.push_back({"Software", "12.4"});
  if (hasCaptions(photo)) look.xmp = xmpPacket(photo);
  return pngFile(stored, look);
}

Bytes makeTiff(const Photo& photo, const Picture& stored) {
  Directory directory = directoryOf(photo, stored);
  if (hasCaptions(photo)) {
    const Bytes iptc = iptcRecords(photo);
    const std::string xmp = xmpPacket(photo);
    directory.addBlock(0x02BC, Bytes(xmp.begin(), xmp.end()));
    directory.addBlock(0x83BB, iptc);
    directory.addBlock(0x8649, photoshopResources(iptc));
  }
  directory.addUndefined(0x8773, profileOf(photo));
  return tiffFile(stored, std::move(directory), byteOrderOf(*photo.camera));
}

Bytes makeGif(const Photo& photo) {
  constexpr int frameCount = 16;
  std::vector<Picture> frames;
  frames.reserve(frameCount);
  for (int frame = 0; frame < frameCount; ++frame)
    frames.push_back(
        paintScene(photo.scene, photo.width, photo.height, 0.12f * static_cast<float>(frame)));
  return gifFile(frames, 12, photo.caption != nullptr ? photo.caption : "");
}

}  // namespace

model::Result<Bytes> makePhoto(const Photo& photo) {
  if (photo.format == PhotoFormat::gif) return makeGif(photo);
  const Picture stored =
      storedForOrientation(paintScene(photo.scene, photo.width, photo.height), photo.orientation);
  switch (photo.format) {
    case PhotoFormat::jpeg:
      return makeJpeg(photo, stored);
    case PhotoFormat::heic:
      return phoneHeicFile(stored, heicLook(photo, stored));
    case PhotoFormat::computerHeic:
      return computerHeicFile(stored, heicLook(photo, stored));
    case PhotoFormat::png:
      return makePng(photo, stored);
    case PhotoFormat::tiff:
      return makeTiff(photo, stored);
    default:
      return bmpFile(stored, photo.density);
  }
}

}  // namespace samples
