// SPDX-License-Identifier: MIT
#include "media/image/image_type.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

TEST(ImageType, contentDecides) {
  struct Case {
    std::string head;
    const char* type;
  };
  const auto brands = [](const std::string& list) {
    return isoBox("ftyp", list.substr(0, 4) + "\0\0\0\0"s + list.substr(4));
  };
  const Case cases[] = {
      {"\xFF\xD8\xFF\xE0", "public.jpeg"},
      {pngHeader(8, 6), "public.png"},
      {"GIF89a", "com.compuserve.gif"},
      {"II*\0\x08\0\0\0"s, "public.tiff"},
      {"BM" + std::string(12, '\0') + "\x28\0\0\0"s, "com.microsoft.bmp"},
      {webpFile(""), "org.webmproject.webp"},
      {"RIFF\0\0\0\0AVI LIST"s, "public.avi"},
      {"\x1A\x45\xDF\xA3matroska", "org.matroska.mkv"},
      {"\x1A\x45\xDF\xA3\x42\x82\x84webm", "org.webmproject.webm"},
      {brands("heicmif1heic"), "public.heic"},
      {brands("mif1heic"), "public.heif"},
      {brands("mif1avif"), "public.avif"},
      {brands("avifmif1"), "public.avif"},
      {brands("qt  "), "com.apple.quicktime-movie"},
      {brands("mp42isom"), "public.mpeg-4"},
      {brands("isom"), "public.mpeg-4"},
      {brands("M4V "), "com.apple.m4v-video"},
      {brands("3gp4"), "public.3gpp"},
      {isoBox("moov", ""), "com.apple.quicktime-movie"},
      {isoBox("wide", ""), "com.apple.quicktime-movie"},
      {"II*\0\x10\0\0\0CR\2\0"s, "com.canon.cr2-raw-image"},
      {"IIU\0\x18\0\0\0"s, "com.panasonic.rw2-raw-image"},
      {brands("crx isom") + std::string(40, 'x') + "CNCVCanonCR3_001", "com.canon.cr3-raw-image"},
      {brands("crx isom") + std::string(40, 'x') + "CNCVCanonCRM0001", "public.mpeg-4"},
      {"II\x1A\0\0\0HEAPCCDR"s, "com.canon.crw-raw-image"},
      {"\0MRM\0\0\0\0"s, "com.konicaminolta.raw-image"},
      {"FUJIFILMCCD-RAW 0201", "com.fuji.raw-image"},
      {"FOVb\2\0\2\0"s, "com.sigma.raw-image"},
      {isoBox("jP  ", "\r\n\x87\n"), "public.jpeg-2000"},
      {"\xFF\x4F\xFF\x51", "public.jpeg-2000"},
      {"8BPS\0\1"s, "com.adobe.photoshop-image"},
      {"\x76\x2F\x31\x01\2\0\0\0"s, "com.ilm.openexr-image"},
      {"\0\0\1\0\1\0\x10\x10\0\0\1\0\x20\0\x30\0\0\0\x16\0\0\0"s, "com.microsoft.ico"},
      {"\0\0\2"s + std::string(9, '\0') + "\x80\0\x80\0\x18\0"s, "com.truevision.tga-image"},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(uniformTypeIdentifier(viewOf(each.head), "photo.xyz"), each.type) << each.type;
  }
}

TEST(ImageType, theExtensionTellsRawFilesApart) {
  struct Case {
    const char* name;
    const char* type;
  };
  const Case cases[] = {
      {"a.dng", "com.adobe.raw-image"},
      {"a.NEF", "com.nikon.raw-image"},
      {"a.Cr2", "com.canon.cr2-raw-image"},
      {"a.arw", "com.sony.arw-raw-image"},
      {"a.orf", "com.olympus.raw-image"},
      {"a.pef", "com.pentax.raw-image"},
      {"a.srw", "com.samsung.raw-image"},
      {"a.rwl", "com.leica.rwl-raw-image"},
      {"a.tif", "public.tiff"},
      {"a.jpg", "public.tiff"},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(uniformTypeIdentifier(viewOf("MM\0*\0\0\0\x08"s), each.name), each.type) << each.name;
  }
}

TEST(ImageType, theExtensionDecidesWhereContentSaysNothing) {
  struct Case {
    const char* name;
    const char* type;
  };
  const Case cases[] = {
      {"IMG_0001.JPG", "public.jpeg"},
      {"a.jpeg", "public.jpeg"},
      {"a.heic", "public.heic"},
      {"a.heif", "public.heif"},
      {"a.png", "public.png"},
      {"a.gif", "com.compuserve.gif"},
      {"a.tiff", "public.tiff"},
      {"a.bmp", "com.microsoft.bmp"},
      {"a.webp", "org.webmproject.webp"},
      {"a.avif", "public.avif"},
      {"a.dng", "com.adobe.raw-image"},
      {"a.mov", "com.apple.quicktime-movie"},
      {"a.mp4", "public.mpeg-4"},
      {"a.m4v", "com.apple.m4v-video"},
      {"a.3gp", "public.3gpp"},
      {"a.mkv", "org.matroska.mkv"},
      {"a.avi", "public.avi"},
      {"a.raf", "com.fuji.raw-image"},
      {"a.CR3", "com.canon.cr3-raw-image"},
      {"a.crw", "com.canon.crw-raw-image"},
      {"a.mrw", "com.konicaminolta.raw-image"},
      {"a.rw2", "com.panasonic.rw2-raw-image"},
      {"a.x3f", "com.sigma.raw-image"},
      {"a.jp2", "public.jpeg-2000"},
      {"a.psd", "com.adobe.photoshop-image"},
      {"a.exr", "com.ilm.openexr-image"},
      {"a.ico", "com.microsoft.ico"},
      {"a.tga", "com.truevision.tga-image"},
      {"a.txt", ""},
      {"jpg", ""},
      {"folder.jpg/name", ""},
      {"a.", ""},
      {"", ""},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(uniformTypeIdentifier({}, each.name), each.type) << each.name;
    EXPECT_EQ(uniformTypeIdentifier(viewOf("some text"), each.name), each.type) << each.name;
  }
}

TEST(ImageType, shortHeadsSayNothing) {
  const std::string head = isoBox("ftyp", "heic\0\0\0\0mif1heic"s);
  for (std::size_t length = 0; length < 8; ++length) {
    EXPECT_EQ(uniformTypeIdentifier(viewOf(std::string_view(head).substr(0, length)), ""), "");
  }
}

}  // namespace
}  // namespace media::image
