// SPDX-License-Identifier: MIT
#include "samples/formats/tiff_file.h"

#include "samples/formats/deflate.h"

namespace samples {

namespace {

// Each channel as its difference to the pixel on the left (predictor 2).
Bytes differencedRows(const Picture& picture, ByteOrder order) {
  ByteWriter rows(order);
  for (int y = 0; y < picture.height(); ++y) {
    int last[3] = {0, 0, 0};
    for (int x = 0; x < picture.width(); ++x) {
      const Rgb& pixel = picture.at(x, y);
      const float parts[3] = {pixel.red, pixel.green, pixel.blue};
      for (int part = 0; part < 3; ++part) {
        // Twelve true bits, as cameras have them: the lowest four repeat the highest.
        const int sensor = quantized(parts[part], 4095);
        const int value = (sensor << 4) | (sensor >> 8);
        rows.u16(value - last[part]);
        last[part] = value;
      }
    }
  }
  return rows.take();
}

}  // namespace

Bytes tiffFile(const Picture& stored, Directory directory, ByteOrder order) {
  directory.addLong(0x00FE, {0});
  directory.addLong(0x0100, {stored.width()});
  directory.addLong(0x0101, {stored.height()});
  directory.addShort(0x0102, {16, 16, 16});
  directory.addShort(0x0103, {8});  // deflate
  directory.addShort(0x0106, {2});  // RGB
  directory.addShort(0x0115, {3});
  directory.addLong(0x0116, {stored.height()});
  directory.addShort(0x011C, {1});
  directory.addShort(0x013D, {2});
  directory.addShort(0x0153, {1, 1, 1});
  directory.addAttachment(0x0111, 0x0117, deflated(differencedRows(stored, order)));
  return tiffBlock(order, {directory});
}

}  // namespace samples
