// SPDX-License-Identifier: MIT
#include "samples/formats/jpeg_file.h"

#include <jpeglib.h>

#include <cstdio>  // jpeglib.h needs it and does not include it
#include <cstdlib>

namespace samples {

namespace {

Bytes prefixed(std::string_view prefix, std::span<const std::uint8_t> bytes) {
  ByteWriter out;
  out.text(prefix);
  out.append(bytes);
  return out.take();
}

void configure(jpeg_compress_struct& coder, const JpegLook& look) {
  jpeg_set_defaults(&coder);
  if (look.grayscale) jpeg_set_colorspace(&coder, JCS_GRAYSCALE);
  jpeg_set_quality(&coder, look.quality, TRUE);
  coder.write_JFIF_header = look.jfif ? TRUE : FALSE;
  coder.density_unit = 1;
  coder.X_density = static_cast<UINT16>(look.density);
  coder.Y_density = static_cast<UINT16>(look.density);
  if (look.progressive)
    jpeg_simple_progression(&coder);
  else
    coder.optimize_coding = TRUE;
}

}  // namespace

Bytes jpegFile(const Picture& stored, const JpegLook& look,
               const std::vector<JpegSegment>& segments) {
  // Coding into memory with sound parameters cannot fail but for lack of memory, for which the
  // library's own handler (a message, then exit) is right.
  jpeg_error_mgr errors;
  jpeg_compress_struct coder;
  coder.err = jpeg_std_error(&errors);
  jpeg_create_compress(&coder);
  unsigned char* buffer = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&coder, &buffer, &size);
  coder.image_width = static_cast<JDIMENSION>(stored.width());
  coder.image_height = static_cast<JDIMENSION>(stored.height());
  coder.input_components = 3;
  coder.in_color_space = JCS_RGB;
  configure(coder, look);
  jpeg_start_compress(&coder, TRUE);
  for (const JpegSegment& segment : segments)
    jpeg_write_marker(&coder, JPEG_APP0 + segment.number, segment.payload.data(),
                      static_cast<unsigned>(segment.payload.size()));
  Bytes pixels = rgbBytes(stored);
  while (coder.next_scanline < coder.image_height) {
    JSAMPROW row = pixels.data() + static_cast<std::size_t>(coder.next_scanline) *
                                       static_cast<std::size_t>(stored.width()) * 3;
    jpeg_write_scanlines(&coder, &row, 1);
  }
  jpeg_finish_compress(&coder);
  Bytes file(buffer, buffer + size);
  jpeg_destroy_compress(&coder);
  std::free(buffer);
  return file;
}

Bytes exifSegment(const Bytes& tiffBlock) {
  return prefixed(std::string_view("Exif\0\0", 6), tiffBlock);
}

Bytes xmpSegment(std::string_view packet) {
  ByteWriter out;
  out.text(std::string_view("http://ns.adobe.com/xap/1.0/\0", 29));
  out.text(packet);
  return out.take();
}

Bytes profileSegment(const Bytes& profile) {
  // The first of one part.
  return prefixed(std::string_view("ICC_PROFILE\0\1\1", 14), profile);
}

}  // namespace samples
