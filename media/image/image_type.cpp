// SPDX-License-Identifier: MIT
//
// Most kinds are told by their first bytes, boxes by their brands. A TIFF structure may be one of
// many raw files without a mark, so there the extension is believed, and everywhere else only where
// the content says nothing.
#include "media/image/image_type.h"

#include <algorithm>
#include <string>

#include "media/image/heif/heif_container.h"
#include "media/image/jpeg/jpeg_container.h"
#include "media/image/other/bmp_container.h"
#include "media/image/other/exr_container.h"
#include "media/image/other/gif_container.h"
#include "media/image/other/ico_container.h"
#include "media/image/other/jpeg2000_container.h"
#include "media/image/other/psd_container.h"
#include "media/image/other/tga_container.h"
#include "media/image/other/webp_container.h"
#include "media/image/png/png_container.h"
#include "media/image/raw/cr2_container.h"
#include "media/image/raw/cr3_container.h"
#include "media/image/raw/crw_container.h"
#include "media/image/raw/mrw_container.h"
#include "media/image/raw/raf_container.h"
#include "media/image/raw/rw2_container.h"
#include "media/image/raw/x3f_container.h"
#include "media/image/tiff/tiff_container.h"

namespace media::image {

namespace {

using namespace std::string_view_literals;

struct TypeRow {
  std::string_view name;  // an extension or a brand
  std::string_view type;
};

constexpr std::string_view movie = "com.apple.quicktime-movie";
constexpr std::string_view mpeg4 = "public.mpeg-4";
constexpr std::string_view matroska = "org.matroska.mkv";
constexpr std::string_view canon2 = "com.canon.cr2-raw-image";
constexpr std::string_view canon3 = "com.canon.cr3-raw-image";
constexpr std::string_view canonHeap = "com.canon.crw-raw-image";
constexpr std::string_view fuji = "com.fuji.raw-image";
constexpr std::string_view minolta = "com.konicaminolta.raw-image";
constexpr std::string_view panasonic = "com.panasonic.rw2-raw-image";
constexpr std::string_view sigma = "com.sigma.raw-image";
constexpr std::string_view jpeg2000 = "public.jpeg-2000";
constexpr std::string_view photoshop = "com.adobe.photoshop-image";
constexpr std::string_view openExr = "com.ilm.openexr-image";
constexpr std::string_view icon = "com.microsoft.ico";
constexpr std::string_view targa = "com.truevision.tga-image";

constexpr TypeRow byExtension[] = {
    {"jpg", "public.jpeg"},
    {"jpeg", "public.jpeg"},
    {"jpe", "public.jpeg"},
    {"heic", "public.heic"},
    {"heif", "public.heif"},
    {"hif", "public.heif"},
    {"png", "public.png"},
    {"gif", "com.compuserve.gif"},
    {"tif", "public.tiff"},
    {"tiff", "public.tiff"},
    {"bmp", "com.microsoft.bmp"},
    {"dib", "com.microsoft.bmp"},
    {"webp", "org.webmproject.webp"},
    {"avif", "public.avif"},
    {"dng", "com.adobe.raw-image"},
    {"nef", "com.nikon.raw-image"},
    {"cr2", canon2},
    {"cr3", canon3},
    {"crw", canonHeap},
    {"arw", "com.sony.arw-raw-image"},
    {"mrw", minolta},
    {"orf", "com.olympus.raw-image"},
    {"pef", "com.pentax.raw-image"},
    {"raf", fuji},
    {"rw2", panasonic},
    {"rwl", "com.leica.rwl-raw-image"},
    {"srw", "com.samsung.raw-image"},
    {"x3f", sigma},
    {"jp2", jpeg2000},
    {"jpf", jpeg2000},
    {"jpx", jpeg2000},
    {"j2k", jpeg2000},
    {"j2c", jpeg2000},
    {"jpc", jpeg2000},
    {"psd", photoshop},
    {"psb", photoshop},
    {"exr", openExr},
    {"ico", icon},
    {"tga", targa},
    {"mov", movie},
    {"qt", movie},
    {"mp4", mpeg4},
    {"m4v", "com.apple.m4v-video"},
    {"3gp", "public.3gpp"},
    {"3gpp", "public.3gpp"},
    {"mkv", matroska},
    {"avi", "public.avi"},
};

// Major brands; other brands of images are "public.heif", of movies "public.mpeg-4".
constexpr TypeRow byBrand[] = {
    {"heic", "public.heic"},
    {"heix", "public.heic"},
    {"heim", "public.heic"},
    {"heis", "public.heic"},
    {"avif", "public.avif"},
    {"avis", "public.avif"},
    {"qt  ", movie},
    {"M4V ", "com.apple.m4v-video"},
    {"M4VH", "com.apple.m4v-video"},
    {"M4VP", "com.apple.m4v-video"},
};

template <std::size_t count>
std::string_view typeOf(std::string_view name, const TypeRow (&rows)[count]) {
  const auto* row = std::ranges::find(rows, name, &TypeRow::name);
  return row == std::end(rows) ? std::string_view() : row->type;
}

std::string_view typeOfExtension(std::string_view fileName) {
  const std::size_t dot = fileName.rfind('.');
  if (dot == std::string_view::npos || fileName.find('/', dot) != std::string_view::npos) return {};
  std::string extension(fileName.substr(dot + 1));
  for (char& character : extension) {
    if (character >= 'A' && character <= 'Z') character = static_cast<char>(character + 32);
  }
  return typeOf(extension, byExtension);
}

// A file that says of itself "mif1" may still be meant for readers of one codec only.
bool isCompatibleWith(io::ByteView head, std::string_view wanted) {
  const std::string_view brands =
      head.text().substr(0, head.u32(0, io::ByteOrder::big).value_or(0));
  for (std::size_t offset = 16; offset + 4 <= brands.size(); offset += 4) {
    if (brands.substr(offset, 4) == wanted) return true;
  }
  return false;
}

std::string_view typeOfBrands(io::ByteView head) {
  const std::string_view major = head.from(8).text().substr(0, 4);
  if (const auto type = typeOf(major, byBrand); !type.empty()) return type;
  if (isHeifFile(head)) {
    return isCompatibleWith(head, "avif") ? "public.avif" : "public.heif";
  }
  return major.starts_with("3g") ? "public.3gpp" : mpeg4;
}

// Movies from before there were brands begin with one of these boxes.
bool isBareMovie(io::ByteView head) {
  constexpr std::string_view boxes[] = {"moov", "mdat", "wide", "free", "skip", "pnot"};
  return std::ranges::find(boxes, head.from(4).text().substr(0, 4)) != std::end(boxes);
}

std::string_view typeOfRiff(io::ByteView head) {
  if (isWebpFile(head)) return "org.webmproject.webp";
  return head.startsWith("RIFF") && head.from(8).startsWith("AVI ") ? "public.avi" : "";
}

// A TIFF structure may be the raw file that its extension promises.
std::string_view typeOfTiff(io::ByteView head, std::string_view fileName) {
  const std::string_view type = typeOfExtension(fileName);
  if (type.find("raw-image") != std::string_view::npos) return type;
  if (isCr2File(head)) return canon2;
  return isRw2File(head) ? panasonic : "public.tiff";
}

struct ContentRow {
  bool (*isOne)(io::ByteView head);
  std::string_view type;
};

constexpr ContentRow byContent[] = {
    {isJpegFile, "public.jpeg"},
    {isPngFile, "public.png"},
    {isGifFile, "com.compuserve.gif"},
    {isBmpFile, "com.microsoft.bmp"},
    {isCr3File, canon3},
    {isCrwFile, canonHeap},
    {isMrwFile, minolta},
    {isRafFile, fuji},
    {isX3fFile, sigma},
    {isJpeg2000File, jpeg2000},
    {isPsdFile, photoshop},
    {isExrFile, openExr},
    {isIcoFile, icon},
    {isTgaFile, targa},
};

std::string_view typeOfContent(io::ByteView head, std::string_view fileName) {
  for (const ContentRow& row : byContent) {
    if (row.isOne(head)) return row.type;
  }
  if (isTiffFile(head)) return typeOfTiff(head, fileName);
  if (head.from(4).startsWith("ftyp")) return typeOfBrands(head);
  if (isBareMovie(head)) return movie;
  if (head.startsWith("\x1A\x45\xDF\xA3")) {
    const bool isWebm = head.text().find("webm") != std::string_view::npos;
    return isWebm ? "org.webmproject.webm" : matroska;
  }
  return typeOfRiff(head);
}

}  // namespace

std::string_view uniformTypeIdentifier(io::ByteView head, std::string_view fileName) {
  const std::string_view type = typeOfContent(head, fileName);
  return type.empty() ? typeOfExtension(fileName) : type;
}

}  // namespace media::image
