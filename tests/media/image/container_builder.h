// SPDX-License-Identifier: MIT
//
// Builds small image files and metadata blocks, for the tests of their readers. Everything is bytes
// in strings, put together from the inside out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "io/byte_view.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

// Numbers of that many bytes.
std::string bigEndian(std::uint64_t value, int bytes);
std::string littleEndian(std::uint64_t value, int bytes);

std::vector<std::uint8_t> bytesOf(std::string_view text);
io::ByteView viewOf(std::string_view text);  // borrowed

// A zlib stream.
std::string deflated(std::string_view text);

// Metadata blocks.
std::string exifBlock(std::string_view make, int orientation);  // with a resolution of 300 dpi
std::string iptcDataset(int record, int number, std::string_view text);
std::string photoshopResource(int number, std::string_view bytes, std::string_view name = "");
std::string xmpPacket(std::string_view insideDescription);  // elements; known prefixes declared
std::string iccProfile(std::string_view description);       // version 2
std::string iccProfileOfTag(std::string_view tag);          // with that "desc" tag

// JPEG.
std::string jpegSegment(int marker, std::string_view payload);
std::string jpegFrame(int width, int height, int components = 3, int marker = 0xC0);
std::string jpegFile(std::string_view segments);  // between SOI and a scan with coded data

// PNG. The header is of an RGB image of 8 bits.
std::string pngChunk(std::string_view type, std::string_view payload);
std::string pngHeader(std::uint32_t width, std::uint32_t height, int depth = 8, int colorType = 2,
                      int interlacing = 0);
std::string pngFile(std::string_view chunks);  // between the header of an 8 x 6 image and the end

// ISO base media.
std::string isoBox(std::string_view type, std::string_view payload);
std::string fullBox(std::string_view type, int version, std::uint32_t flags,
                    std::string_view payload);

// The extension block of a GIF file that holds an XMP packet.
std::string gifXmp(std::string_view packet);

// RIFF.
std::string riffChunk(std::string_view type, std::string_view payload);
std::string webpFile(std::string_view chunks);

// What copyProperties() says of the bytes: the properties; empty ones with a test failure where
// there are none.
model::Dictionary propertiesOf(std::string_view file);
// The reason where it fails, "none" where the bytes are no image, "" where they are one.
std::string errorOf(std::string_view file);

// The entry of a section, or of the top level where the section is "". Null where it is missing.
const model::Value* entry(const model::Dictionary& properties, std::string_view section,
                          std::string_view key);

}  // namespace media::image
