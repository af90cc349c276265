// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/qt_decoder.h"

#include <QByteArray>
#include <QColorSpace>
#include <QIODevice>
#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <span>
#include <string>

#include "desktop/pictures/pixels/colours.h"
#include "desktop/pictures/pixels/limits.h"
#include "desktop/pictures/pixels/orientation.h"
#include "desktop/pictures/pixels/row_scaler.h"
#include "media/image/image_source.h"

namespace desktop::pictures {

namespace {

// A byte source as Qt reads it.
class SourceDevice : public QIODevice {
 public:
  explicit SourceDevice(io::ByteSource& source) : _source(source) { open(ReadOnly | Unbuffered); }

  qint64 size() const override { return static_cast<qint64>(_source.size()); }

 protected:
  qint64 readData(char* into, qint64 length) override {
    const std::span bytes(reinterpret_cast<std::uint8_t*>(into), static_cast<std::size_t>(length));
    const auto count = _source.readAt(static_cast<std::uint64_t>(pos()), bytes);
    return count ? static_cast<qint64>(*count) : -1;
  }
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  io::ByteSource& _source;
};

// As the metadata have it: of these formats Qt knows the orientation of TIFF only.
Orientation orientationOf(io::ByteSource& source) {
  const auto properties = media::image::copyProperties(source);
  if (!properties || !*properties) return {};
  const model::Value* value = model::find(**properties, "Orientation");
  return value != nullptr && value->asInteger() ? Orientation(*value->asInteger()) : Orientation();
}

model::Error errorOf(const char* format, const QImageReader& reader) {
  const std::string text = reader.errorString().toStdString();
  return {"cannot be read as " + std::string(format) + ": " + text};
}

// Strips keep what the conversion needs beside the image small.
Picture scaledTo(PixelSize target, const QImage& image) {
  constexpr int stripHeight = 64;
  RowScaler scaler({image.width(), image.height()}, target);
  for (int top = 0; top < image.height(); top += stripHeight) {
    const int height = std::min(stripHeight, image.height() - top);
    const QImage strip = image.copy(0, top, image.width(), height)
                             .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < strip.height(); ++row) {
      const auto* pixels = reinterpret_cast<const std::uint32_t*>(strip.constScanLine(row));
      scaler.addRow({pixels, static_cast<std::size_t>(strip.width())});
    }
  }
  return scaler.take();
}

}  // namespace

// To list what they read Qt asks each of them.
void loadQtDecoders() {
  static_cast<void>(QImageReader::supportedImageFormats());
}

model::Result<Picture> decodeWithQt(const char* format, io::ByteSource& source,
                                    const Request& request) {
  SourceDevice device(source);
  QImageReader reader(&device, format);
  reader.setAutoDetectImageFormat(false);
  QImageReader::setAllocationLimit(static_cast<int>(limits.decodedMegabytes));
  const PixelSize size{reader.size().width(), reader.size().height()};
  if (size.isEmpty()) return errorOf(format, reader);
  if (size.width > limits.imageSide || size.height > limits.imageSide)
    return model::Error{"image too large"};
  const Orientation orientation = orientationOf(source);
  const PixelSize target = orientation.turned(targetSize(orientation.turned(size), request));
  const QImage image = reader.read();
  if (image.isNull()) return errorOf(format, reader);
  if (!covers({image.width(), image.height()}, target)) return model::Error{"damaged image"};
  Picture picture = scaledTo(target, image);
  const QByteArray profile = image.colorSpace().iccProfile();
  convertToSrgb({reinterpret_cast<const std::uint8_t*>(profile.data()),
                 static_cast<std::size_t>(profile.size())},
                picture);
  return orientation.upright(std::move(picture));
}

}  // namespace desktop::pictures
