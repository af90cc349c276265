// SPDX-License-Identifier: MIT
#include "media/image/image_type.h"

#include <algorithm>
#include <string>

#include "media/image/heif/heif_container.h"
#include "media/image/jpeg/jpeg_container.h"
#include "media/image/other/bmp_container.h"
#include "media/image/other/gif_container.h"
#include "media/image/other/webp_container.h"
#include "media/image/png/png_container.h"
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
    {"cr2", "com.canon.cr2-raw-image"},
    {"arw", "com.sony.arw-raw-image"},
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
std::string_view typeOfTiff(std::string_view fileName) {
  const std::string_view type = typeOfExtension(fileName);
  return type.find("raw-image") != std::string_view::npos ? type : "public.tiff";
}

std::string_view typeOfContent(io::ByteView head, std::string_view fileName) {
  if (isJpegFile(head)) return "public.jpeg";
  if (isPngFile(head)) return "public.png";
  if (isGifFile(head)) return "com.compuserve.gif";
  if (isTiffFile(head)) return typeOfTiff(fileName);
  if (isBmpFile(head)) return "com.microsoft.bmp";
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
