// SPDX-License-Identifier: MIT
//
// IPTC-IIM datasets: a marker byte, record and dataset number, a length, the text. The coded
// character set of record 1 holds for all of record 2. Without one the text is what the program's
// system had, most often Windows. IPTC-IIM 4.2, chapters 1, 5 and 6.
#include <algorithm>
#include <string>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/blocks/shortfall.h"
#include "media/image/blocks/windows_latin.h"
#include "model/utf8.h"

namespace media::image {

namespace {

enum class Repeats : std::uint8_t {
  no,
  yes
};  // a dataset that may be repeated is shown as an array

struct DatasetRow {
  std::string_view key;
  std::uint8_t number;
  Repeats repeats = Repeats::no;
};

// Record 2, by number.
constexpr DatasetRow rows[] = {
    {"ObjectTypeReference", 3},
    {"ObjectAttributeReference", 4, Repeats::yes},
    {"ObjectName", 5},
    {"EditStatus", 7},
    {"EditorialUpdate", 8},
    {"Urgency", 10},
    {"SubjectReference", 12, Repeats::yes},
    {"Category", 15},
    {"SupplementalCategory", 20, Repeats::yes},
    {"FixtureIdentifier", 22},
    {"Keywords", 25, Repeats::yes},
    {"ContentLocationCode", 26, Repeats::yes},
    {"ContentLocationName", 27, Repeats::yes},
    {"ReleaseDate", 30},
    {"ReleaseTime", 35},
    {"ExpirationDate", 37},
    {"ExpirationTime", 38},
    {"SpecialInstructions", 40},
    {"ActionAdvised", 42},
    {"ReferenceService", 45, Repeats::yes},
    {"ReferenceDate", 47, Repeats::yes},
    {"ReferenceNumber", 50, Repeats::yes},
    {"DateCreated", 55},
    {"TimeCreated", 60},
    {"DigitalCreationDate", 62},
    {"DigitalCreationTime", 63},
    {"OriginatingProgram", 65},
    {"ProgramVersion", 70},
    {"ObjectCycle", 75},
    {"Byline", 80, Repeats::yes},
    {"BylineTitle", 85, Repeats::yes},
    {"City", 90},
    {"SubLocation", 92},
    {"Province/State", 95},
    {"Country/PrimaryLocationCode", 100},
    {"Country/PrimaryLocationName", 101},
    {"OriginalTransmissionReference", 103},
    {"Headline", 105},
    {"Credit", 110},
    {"Source", 115},
    {"CopyrightNotice", 116},
    {"Contact", 118, Repeats::yes},
    {"Caption/Abstract", 120},
    {"Writer/Editor", 122, Repeats::yes},
    {"ImageType", 130},
    {"ImageOrientation", 131},
    {"LanguageIdentifier", 135},
};

consteval bool numbersAscend() {
  for (std::size_t index = 1; index < std::size(rows); ++index) {
    if (rows[index - 1].number >= rows[index].number) return false;
  }
  return true;
}
static_assert(numbersAscend());

const DatasetRow* rowOf(std::uint8_t number) {
  const auto* row = std::ranges::lower_bound(rows, number, {}, &DatasetRow::number);
  return row != std::end(rows) && row->number == number ? row : nullptr;
}

struct Dataset {
  std::uint8_t record = 0;
  std::uint8_t number = 0;
  io::ByteView bytes;
};

// Takes datasets off the front of a block, one by one.
class DatasetWalk {
 public:
  explicit DatasetWalk(io::ByteView block) : _rest(block) {}

  // The next dataset; none at the end and where the bytes are no dataset any more.
  std::optional<Dataset> next() {
    constexpr std::uint8_t marker = 0x1C;
    if (_rest.size() < 5 || _rest.u8(0) != marker) return std::nullopt;
    const std::uint16_t claimed = _rest.u16(3, io::ByteOrder::big).value_or(0);
    std::uint64_t header = 5;
    std::uint64_t length = claimed;
    if (claimed & 0x8000) {  // extended: the low bits say how many bytes the length has
      const auto wide = extendedLength(claimed & 0x7FFF);
      if (!wide) return std::nullopt;
      header += claimed & 0x7FFF;
      length = *wide;
    }
    const auto bytes = _rest.sub(header, length);
    if (!bytes) return std::nullopt;
    const Dataset dataset{*_rest.u8(1), *_rest.u8(2), *bytes};
    _rest = _rest.from(header + length);
    return dataset;
  }

 private:
  std::optional<std::uint64_t> extendedLength(std::uint64_t lengthOfLength) const {
    const auto bytes = _rest.sub(5, lengthOfLength);
    if (!bytes || lengthOfLength > 4) return std::nullopt;
    std::uint64_t length = 0;
    for (const std::uint8_t byte : bytes->bytes()) length = (length << 8) | byte;
    return length;
  }

  io::ByteView _rest;
};

// The escape sequence that announces UTF-8. ISO 2022.
constexpr std::string_view utf8Announcement = "\x1B%G";

std::string textOf(io::ByteView bytes, bool isUtf8) {
  std::string_view text = bytes.text().substr(0, limits.textBytes);
  text = text.substr(0, text.find('\0'));
  return isUtf8 ? model::replacingInvalidUtf8(text) : utf8OrWindowsLatin(text);
}

// A text without characters, or an array of nothing else.
bool isEmpty(const model::Value& value) {
  if (const model::Array* elements = value.asArray())
    return std::ranges::all_of(*elements, isEmpty);
  return value.asString() && value.asString()->empty();
}

// What is there stays, but an empty dataset never hides a filled one.
void setUnlessFilled(model::Dictionary& iptc, std::string_view key, model::Value value) {
  const auto known = iptc.find(key);
  if (known == iptc.end()) {
    iptc.emplace(key, std::move(value));
  } else if (isEmpty(known->second)) {
    known->second = std::move(value);
  }
}

void store(const DatasetRow& row, std::string text, model::Dictionary& iptc) {
  if (row.repeats == Repeats::no) return setUnlessFilled(iptc, row.key, std::move(text));
  model::Value& value = iptc.try_emplace(std::string(row.key), model::Array()).first->second;
  model::Array* elements = value.asArray();
  if (elements && elements->size() < limits.valuesPerField) {
    elements->emplace_back(std::move(text));
  }
}

}  // namespace

bool hasEmptyDatasets(const model::Dictionary& properties) {
  const model::Value* iptc = model::find(properties, "{IPTC}");
  return iptc && iptc->asDictionary() &&
         std::ranges::any_of(*iptc->asDictionary(),
                             [](const auto& entry) { return isEmpty(entry.second); });
}

void readIptcBlock(io::ByteView datasets, model::Dictionary& properties) {
  DatasetWalk walk(datasets);
  bool isUtf8 = false;
  model::Dictionary read;
  while (const auto dataset = walk.next()) {
    if (dataset->record == 1 && dataset->number == 90) {
      isUtf8 = dataset->bytes.startsWith(utf8Announcement);
    }
    const DatasetRow* row = dataset->record == 2 ? rowOf(dataset->number) : nullptr;
    if (!row) continue;
    store(*row, textOf(dataset->bytes, isUtf8), read);
    if (dataset->bytes.size() > limits.textBytes) noteShortfall(properties, cutText);
  }
  if (read.empty()) return;
  model::Dictionary& iptc = section(properties, "{IPTC}");
  for (auto& [key, value] : read) setUnlessFilled(iptc, key, std::move(value));
}

}  // namespace media::image
