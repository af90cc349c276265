// SPDX-License-Identifier: MIT
//
// A directory is filled first and written afterwards. Its values are kept as numbers, since their
// bytes depend on the byte order of the block. Writing leaves the offsets of larger values,
// directories and attachments open until these have found their places behind the table.
#include "samples/metadata/tiff_block.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace samples {

namespace {

// Types of TIFF 6.0, section 2.
constexpr std::uint16_t typeByte = 1;
constexpr std::uint16_t typeAscii = 2;
constexpr std::uint16_t typeShort = 3;
constexpr std::uint16_t typeLong = 4;
constexpr std::uint16_t typeRational = 5;
constexpr std::uint16_t typeUndefined = 7;
constexpr std::uint16_t typeSignedLong = 9;
constexpr std::uint16_t typeSignedRational = 10;

constexpr std::size_t entrySize = 12;

// Values begin at even offsets.
void align(ByteWriter& out) {
  if (out.size() % 2 != 0) out.u8(0);
}

}  // namespace

Rational approximated(double value, std::int64_t largest) {
  const bool negative = value < 0;
  double rest = std::abs(value);
  Rational previous{0, 1};
  Rational current{1, 0};
  for (int step = 0; step < 24; ++step) {
    const auto whole = static_cast<std::int64_t>(std::floor(rest));
    const Rational next{whole * current.numerator + previous.numerator,
                        whole * current.denominator + previous.denominator};
    if (next.denominator > largest) break;
    previous = std::exchange(current, next);
    const double reached =
        static_cast<double>(current.numerator) / static_cast<double>(current.denominator);
    if (std::abs(reached - std::abs(value)) < 1e-6) break;
    rest = 1 / (rest - static_cast<double>(whole));
  }
  return {negative ? -current.numerator : current.numerator, current.denominator};
}

void Directory::addNumbers(std::uint16_t tag, std::uint16_t type,
                           std::initializer_list<std::int64_t> values) {
  _entries.push_back({.tag = tag,
                      .type = type,
                      .count = static_cast<std::uint32_t>(values.size()),
                      .numbers = values});
}

void Directory::addFractions(std::uint16_t tag, std::uint16_t type,
                             std::initializer_list<Rational> values) {
  addNumbers(tag, type, {});
  Entry& entry = _entries.back();
  entry.count = static_cast<std::uint32_t>(values.size());
  for (const Rational& value : values) {
    entry.numbers.push_back(value.numerator);
    entry.numbers.push_back(value.denominator);
  }
}

void Directory::addByte(std::uint16_t tag, std::initializer_list<std::int64_t> values) {
  addNumbers(tag, typeByte, values);
}

void Directory::addText(std::uint16_t tag, std::string_view text) {
  Bytes bytes(text.begin(), text.end());
  bytes.push_back(0);
  const auto count = static_cast<std::uint32_t>(bytes.size());
  _entries.push_back({.tag = tag, .type = typeAscii, .count = count, .bytes = std::move(bytes)});
}

void Directory::addShort(std::uint16_t tag, std::initializer_list<std::int64_t> values) {
  addNumbers(tag, typeShort, values);
}

void Directory::addLong(std::uint16_t tag, std::initializer_list<std::int64_t> values) {
  addNumbers(tag, typeLong, values);
}

void Directory::addRational(std::uint16_t tag, std::initializer_list<Rational> values) {
  addFractions(tag, typeRational, values);
}

void Directory::addSignedLong(std::uint16_t tag, std::initializer_list<std::int64_t> values) {
  addNumbers(tag, typeSignedLong, values);
}

void Directory::addSignedRational(std::uint16_t tag, std::initializer_list<Rational> values) {
  addFractions(tag, typeSignedRational, values);
}

void Directory::addUndefined(std::uint16_t tag, Bytes bytes) {
  const auto count = static_cast<std::uint32_t>(bytes.size());
  _entries.push_back(
      {.tag = tag, .type = typeUndefined, .count = count, .bytes = std::move(bytes)});
}

void Directory::addUndefined(std::uint16_t tag, std::string_view text) {
  addUndefined(tag, Bytes(text.begin(), text.end()));
}

void Directory::addBlock(std::uint16_t tag, Bytes bytes) {
  const auto count = static_cast<std::uint32_t>(bytes.size());
  _entries.push_back({.tag = tag, .type = typeByte, .count = count, .bytes = std::move(bytes)});
}

void Directory::addDirectory(std::uint16_t tag, Directory directory) {
  addLong(tag, {0});
  _entries.back().directory.push_back(std::move(directory));
}

void Directory::addAttachment(std::uint16_t offsetTag, std::uint16_t lengthTag, Bytes bytes) {
  addLong(lengthTag, {static_cast<std::int64_t>(bytes.size())});
  addLong(offsetTag, {0});
  _entries.back().bytes = std::move(bytes);
}

// Writes one directory: the table first, then the values that do not fit into it, then the
// directories it holds, then the attachments.
class DirectoryWriter {
 public:
  DirectoryWriter(ByteWriter& out, const Directory& directory) : _out(out) {
    for (const Directory::Entry& entry : directory._entries) _entries.push_back(&entry);
    std::stable_sort(_entries.begin(), _entries.end(),
                     [](const auto* a, const auto* b) { return a->tag < b->tag; });
  }

  std::size_t write() {
    _table = _out.size() + 2;
    _out.u16(_entries.size());
    for (const Directory::Entry* entry : _entries) writeEntry(*entry);
    const std::size_t link = _out.size();
    _out.u32(0);
    forEachEntry([&](const Directory::Entry& entry, std::size_t field) {
      const Bytes value = valueBytes(entry);
      if (isPointer(entry) || value.size() <= 4) return;
      point(field);
      _out.append(value);
    });
    forEachEntry([&](const Directory::Entry& entry, std::size_t field) {
      if (entry.directory.empty()) return;
      point(field);
      DirectoryWriter(_out, entry.directory.front()).write();
    });
    forEachEntry([&](const Directory::Entry& entry, std::size_t field) {
      if (!isAttachment(entry)) return;
      point(field);
      _out.append(entry.bytes);
    });
    align(_out);
    return link;
  }

 private:
  static bool isAttachment(const Directory::Entry& entry) {
    return entry.type == typeLong && !entry.bytes.empty();
  }
  static bool isPointer(const Directory::Entry& entry) {
    return isAttachment(entry) || !entry.directory.empty();
  }

  template <typename Visit>
  void forEachEntry(Visit visit) {
    for (std::size_t index = 0; index < _entries.size(); ++index)
      visit(*_entries[index], _table + index * entrySize + 8);
  }

  void point(std::size_t field) {
    align(_out);
    _out.patchU32(field, _out.size());
  }

  Bytes valueBytes(const Directory::Entry& entry) const {
    if (!entry.bytes.empty() && !isAttachment(entry)) return entry.bytes;
    ByteWriter value(_out.order());
    for (const std::int64_t number : entry.numbers) {
      if (entry.type == typeByte)
        value.u8(number);
      else if (entry.type == typeShort)
        value.u16(number);
      else
        value.u32(number);
    }
    return value.take();
  }

  void writeEntry(const Directory::Entry& entry) {
    _out.u16(entry.tag);
    _out.u16(entry.type);
    _out.u32(entry.count);
    const Bytes value = valueBytes(entry);
    const bool fits = value.size() <= 4;
    if (fits) _out.append(value);
    _out.zeros(fits ? 4 - value.size() : 4);
  }

  ByteWriter& _out;
  std::vector<const Directory::Entry*> _entries;
  std::size_t _table = 0;
};

std::size_t writeDirectory(ByteWriter& out, const Directory& directory) {
  return DirectoryWriter(out, directory).write();
}

Bytes tiffBlock(ByteOrder order, const std::vector<Directory>& directories) {
  ByteWriter out(order);
  out.text(order == ByteOrder::big ? "MM" : "II");
  out.u16(42);
  std::size_t link = out.size();
  out.u32(0);
  for (const Directory& directory : directories) {
    align(out);
    out.patchU32(link, out.size());
    link = writeDirectory(out, directory);
  }
  return out.take();
}

}  // namespace samples
