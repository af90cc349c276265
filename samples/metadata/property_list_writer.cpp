// SPDX-License-Identifier: MIT
#include "samples/metadata/property_list_writer.h"

namespace samples {

namespace {

class PropertyListWriter {
 public:
  Bytes write(const model::Value& root) {
    _out.text("bplist00");
    const std::size_t rootIndex = add(root);
    const std::size_t table = _out.size();
    for (const std::size_t offset : _offsets) _out.u16(offset);
    // The trailer: unused bytes, widths of an offset and of a reference, counts, table.
    _out.zeros(6);
    _out.u8(2);
    _out.u8(1);
    _out.u64(_offsets.size());
    _out.u64(rootIndex);
    _out.u64(table);
    return _out.take();
  }

 private:
  // Containers come after what they hold, so that their references are known.
  std::size_t add(const model::Value& value) {
    Bytes references;
    if (const model::Dictionary* dictionary = value.asDictionary()) {
      for (const auto& [key, held] : *dictionary) references.push_back(reference(add(key)));
      for (const auto& [key, held] : *dictionary) references.push_back(reference(add(held)));
    }
    if (const model::Array* array = value.asArray())
      for (const model::Value& held : *array) references.push_back(reference(add(held)));
    _offsets.push_back(_out.size());
    writeObject(value);
    _out.append(references);
    return _offsets.size() - 1;
  }

  static std::uint8_t reference(std::size_t index) { return static_cast<std::uint8_t>(index); }

  void writeObject(const model::Value& value) {
    if (const std::int64_t* integer = value.asInteger()) writeInteger(*integer);
    if (const std::string* string = value.asString()) {
      writeMark(0x50, string->size());
      _out.text(*string);
    }
    if (const model::Data* data = value.asData()) {
      writeMark(0x40, data->size());
      _out.append(*data);
    }
    if (const model::Array* array = value.asArray()) writeMark(0xA0, array->size());
    if (const model::Dictionary* dictionary = value.asDictionary())
      writeMark(0xD0, dictionary->size());
  }

  void writeInteger(std::int64_t integer) {
    if (integer >= 0 && integer < 256) {
      _out.u8(0x10);
      _out.u8(integer);
    } else if (integer >= 0 && integer < (std::int64_t{1} << 32)) {
      _out.u8(0x12);
      _out.u32(integer);
    } else {
      _out.u8(0x13);
      _out.u64(integer);
    }
  }

  void writeMark(std::uint8_t kind, std::size_t count) {
    _out.u8(kind | (count < 15 ? count : 15));
    if (count < 15) return;
    _out.u8(0x11);
    _out.u16(count);
  }

  ByteWriter _out;
  std::vector<std::size_t> _offsets;
};

}  // namespace

Bytes binaryPropertyList(const model::Value& value) {
  return PropertyListWriter().write(value);
}

}  // namespace samples
