// SPDX-License-Identifier: MIT
//
// Every fact is a record of its own, somewhere in heaps inside each other. Two tables say which
// records are wanted: those that become facts as all photos have them, and those of "{CIFF}".
#include "media/image/raw/crw_container.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <string>
#include <string_view>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/raw/ciff_heap.h"
#include "media/image/raw/raw_facts.h"
#include "media/image/raw/unix_time.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace media::image {

namespace {

constexpr std::uint64_t leastHeaderSize = 14;  // mark, size, "HEAPCCDR"
constexpr std::uint64_t longestRecord = 512;   // bytes of a record that are looked at

// The bytes of a record and how to read them.
struct RecordBytes {
  io::ByteView bytes;
  io::ByteOrder order;

  std::uint32_t number(std::uint64_t index) const {
    return bytes.u32(index * 4, order).value_or(0);
  }
  std::int16_t small(std::uint64_t index) const {
    return static_cast<std::int16_t>(bytes.u16(index * 2, order).value_or(0));
  }
  // None for what is no number.
  std::optional<double> real(std::uint64_t index) const {
    const auto bits = bytes.u32(index * 4, order);
    const float value = bits ? std::bit_cast<float>(*bits) : NAN;
    return std::isfinite(value) ? std::optional(model::widenedByText(value)) : std::nullopt;
  }
  // Up to the first NUL; none where that is nothing.
  std::optional<std::string> text(std::uint64_t offset = 0) const {
    const std::string_view rest = bytes.from(offset).text();
    const std::string_view found = rest.substr(0, rest.find('\0'));
    return found.empty() ? std::nullopt : std::optional(model::utf8OrLatin1(found));
  }
};

void put(std::string_view sectionName, std::string_view key, std::optional<model::Value> value,
         model::Dictionary& properties) {
  if (value) setIfAbsent(section(properties, sectionName), key, *std::move(value));
}

// Two texts, one behind the other.
void readMakeAndModel(const RecordBytes& record, model::Dictionary& properties) {
  const auto make = record.text();
  put("{TIFF}", "Make", make, properties);
  if (make) put("{TIFF}", "Model", record.text(record.bytes.text().find('\0') + 1), properties);
}

// Width, height, the pixels' aspect, the rotation.
void readImageSpec(const RecordBytes& record, model::Dictionary& properties) {
  const PixelSize size{record.number(0), record.number(1)};
  if (size.isEmpty() || properties.contains("PixelWidth")) return;
  setRawPixels(size, 0, properties);
  setRotation(static_cast<std::int32_t>(record.number(3)), properties);
}

void readCaptureTime(const RecordBytes& record, model::Dictionary& properties) {
  put("{Exif}", "DateTimeOriginal", exifTextOfUnixTime(record.number(0)), properties);
}

// Compensation, time and aperture as APEX values.
void readExposure(const RecordBytes& record, model::Dictionary& properties) {
  put("{Exif}", "ExposureBiasValue", record.real(0), properties);
  put("{Exif}", "ShutterSpeedValue", record.real(1), properties);
  put("{Exif}", "ApertureValue", record.real(2), properties);
}

// Of a list of numbers the second and third: the automatic gain and the speed before it, in steps
// of 1/32 stop.
void readShot(const RecordBytes& record, model::Dictionary& properties) {
  if (record.small(2) <= 0) return;
  const double stops = (record.small(1) + record.small(2)) / 32.0;
  const double speed = std::round(std::exp2(stops) * 100 / 32);
  constexpr double fastest = 1e6;
  if (!(speed >= 1 && speed <= fastest)) return;
  put("{Exif}", "ISOSpeedRatings", model::Array{static_cast<std::int64_t>(speed)}, properties);
}

struct RecordRow {
  std::uint16_t heap;  // 0 for any
  std::uint16_t code;
  void (*read)(const RecordBytes& record, model::Dictionary& properties);
};

constexpr RecordRow recordRows[] = {
    {0, 0x080A, readMakeAndModel}, {0, 0x102A, readShot},     {0, 0x180E, readCaptureTime},
    {0, 0x1810, readImageSpec},    {0, 0x1818, readExposure},
};

// "{CIFF}", by the specification's own names.
enum class CiffForm { text, number, real };

struct CiffRow {
  std::uint16_t heap;
  std::uint16_t code;
  CiffForm form;
  std::string_view key;
};

constexpr CiffRow ciffRows[] = {
    {0x2804, 0x0805, CiffForm::text, "Description"},
    {0, 0x080B, CiffForm::text, "Firmware"},
    {0, 0x0810, CiffForm::text, "OwnerName"},
    {0, 0x0816, CiffForm::text, "ImageFileName"},
    {0, 0x1804, CiffForm::number, "RecordID"},
    {0, 0x1806, CiffForm::number, "SelfTimingTime"},
    {0, 0x180B, CiffForm::number, "CameraSerialNumber"},
    {0, 0x1814, CiffForm::real, "MeasuredEV"},
    {0, 0x1817, CiffForm::number, "ImageSerialNumber"},
};

std::optional<model::Value> ciffValue(const RecordBytes& record, CiffForm form) {
  switch (form) {
    case CiffForm::text:
      return record.text();
    case CiffForm::number:
      return model::Value(record.number(0));
    default:
      return record.real(0);
  }
}

template <typename Row>
bool isOf(const Row& row, const CiffRecord& record) {
  return row.code == record.code && (row.heap == 0 || row.heap == record.heap);
}

void readRecord(const CiffRecord& record, const RecordBytes& bytes, model::Dictionary& properties) {
  for (const RecordRow& row : recordRows) {
    if (isOf(row, record)) row.read(bytes, properties);
  }
  for (const CiffRow& row : ciffRows) {
    if (isOf(row, record)) put("{CIFF}", row.key, ciffValue(bytes, row.form), properties);
  }
}

bool isWanted(const CiffRecord& record) {
  const auto matches = [&](const auto& row) { return isOf(row, record); };
  return std::ranges::any_of(recordRows, matches) || std::ranges::any_of(ciffRows, matches);
}

}  // namespace

bool isCrwFile(io::ByteView head) {
  return (head.startsWith("II") || head.startsWith("MM")) && head.from(6).startsWith("HEAPCCDR");
}

std::optional<model::Error> readCrwFile(io::SourceReader& file, model::Dictionary& properties) {
  const io::ByteView header = file.upTo(0, leastHeaderSize);
  const auto order = header.startsWith("II") ? io::ByteOrder::little : io::ByteOrder::big;
  const auto headerSize = header.u32(2, order);
  if (!headerSize || *headerSize > file.size()) return model::Error{"truncated CRW"};
  const auto take = [&](const CiffRecord& record) {
    if (!isWanted(record)) return;
    const std::uint64_t size = std::min(record.bytes.size(), longestRecord);
    readRecord(record, {file.upTo(record.bytes.begin, size), order}, properties);
  };
  if (!forEachCiffRecord(file, {*headerSize, file.size()}, order, take)) {
    return model::Error{"truncated CRW"};
  }
  if (!properties.contains("PixelWidth")) return model::Error{"damaged CRW"};
  return std::nullopt;
}

}  // namespace media::image
