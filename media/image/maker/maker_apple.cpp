// SPDX-License-Identifier: MIT
//
// Layout: "Apple iOS", NUL, a version of two bytes, the byte order mark ("MM" in every phone's
// note, whatever the order around it), the IFD. Offsets count from the "A".
#include "media/image/maker/maker_apple.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "foundation/property_lists/property_list.h"
#include "media/image/ifd/tag_table.h"
#include "media/image/ifd/tiff_ifd.h"
#include "model/number_text.h"

namespace media::image {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view signature = "Apple iOS\0"sv;
constexpr std::uint64_t orderOffset = 12;
constexpr std::uint64_t ifdOffset = 14;

std::optional<model::Value> singlePrecision(const TiffField& field, std::size_t index) {
  const auto real = field.real(index);
  if (!real) return std::nullopt;
  return model::Value(model::widenedByText(static_cast<float>(*real)));
}

std::optional<model::Value> fractionsValue(const TiffField& field) {
  if (field.count == 1) return singlePrecision(field, 0);
  model::Array values;
  for (std::size_t index = 0; index < field.count; ++index) {
    auto value = singlePrecision(field, index);
    if (!value) return std::nullopt;
    values.push_back(*std::move(value));
  }
  return model::Value(std::move(values));
}

std::size_t nodeCount(const model::Value& tree) {
  std::size_t count = 1;
  if (const model::Array* elements = tree.asArray()) {
    for (const model::Value& element : *elements) count += nodeCount(element);
  } else if (const model::Dictionary* entries = tree.asDictionary()) {
    for (const auto& [key, value] : *entries) count += nodeCount(value);
  }
  return count;
}

// The values of one note. What all its fields and property lists together may take is limited:
// fields may share bytes, and a property list may be far larger in memory than in the file.
class NoteReader {
 public:
  std::optional<model::Value> valueOf(const TiffField& field) {
    if (field.count == 0 || _bytesLeft < field.bytes.size()) return std::nullopt;
    _bytesLeft -= field.bytes.size();
    if (field.type == FieldType::undefined) return untypedValue(field.bytes);
    if (field.type == FieldType::ascii) return textValue(field);
    if (field.count > limits.makerNoteValues) return std::nullopt;
    return isInteger(field.type) ? integerValue(field) : fractionsValue(field);
  }

 private:
  std::optional<model::Value> untypedValue(io::ByteView bytes) {
    if (_nodesLeft > 0 && bytes.startsWith("bplist"sv)) {
      if (auto list = foundation::parsePropertyList(bytes)) {
        _nodesLeft -= std::min(_nodesLeft, nodeCount(list->root));
        return std::move(list->root);
      }
    }
    return model::Value(model::Data(bytes.bytes().begin(), bytes.bytes().end()));
  }

  std::size_t _nodesLeft = limits.makerNoteTreeNodes;
  std::size_t _bytesLeft = limits.embeddedBytes;
};

}  // namespace

void readAppleMakerNote(io::ByteView note, model::Dictionary& properties) {
  if (!note.startsWith(signature)) return;
  const io::ByteView mark = note.from(orderOffset);
  if (!mark.startsWith("MM") && !mark.startsWith("II")) return;
  TiffStructure structure(note, mark.startsWith("MM") ? io::ByteOrder::big : io::ByteOrder::little);
  const auto ifd = structure.readIfd(ifdOffset);
  if (!ifd) return;
  NoteReader reader;
  model::Dictionary values;
  for (const IfdEntry& entry : ifd->entries) {
    if (values.size() == limits.makerNoteEntries) break;
    std::string key = model::integerText(entry.tag);
    if (values.contains(key)) continue;
    const auto field = structure.field(entry);
    auto value = field ? reader.valueOf(*field) : std::nullopt;
    if (value) values.emplace(std::move(key), *std::move(value));
  }
  if (!values.empty()) properties.insert_or_assign("{MakerApple}", std::move(values));
}

}  // namespace media::image
