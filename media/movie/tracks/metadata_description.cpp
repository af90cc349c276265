// SPDX-License-Identifier: MIT
//
// QuickTime File Format, "Timed Metadata Media": the entry holds a "keys" box, whose boxes have a
// local identifier for a type; inside, "keyd" names the key, "dtyp" its type, "ctps" the types it
// conforms to, "loca" its language, "setu" its set-up data.
#include "media/movie/tracks/metadata_description.h"

#include "media/movie/boxes/limits.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace media::movie {

namespace {

using model::Data;
using model::Dictionary;
using model::fourCharCode;

using io::ByteOrder::big;

Data dataOf(io::ByteView bytes) {
  return {bytes.bytes().begin(), bytes.bytes().end()};
}

// A type: its namespace (0 for well-known numbers, 1 for reverse domain names) and itself.
void setDataType(Dictionary& entry, io::ByteView payload) {
  const auto space = payload.u32(0, big);
  if (!space) return;
  entry["MetadataKeyDataTypeNamespace"] = *space;
  entry["MetadataKeyDataType"] = dataOf(payload.from(4));
}

void setKey(Dictionary& entry, io::ByteView payload) {
  const auto space = payload.u32(0, big);
  if (!space) return;
  entry["MetadataKeyNamespace"] = *space;
  entry["MetadataKeyValue"] = dataOf(payload.from(4));
}

void setConformingTypes(Dictionary& entry, io::ByteView payload) {
  model::Array types;
  BoxViewWalk walk(payload);
  while (const auto box = walk.next()) {
    Dictionary type;
    if (box->type == fourCharCode("dtyp")) setDataType(type, box->payload);
    if (!type.empty()) types.emplace_back(std::move(type));
  }
  if (!types.empty()) entry["MetadataKeyConformingDataTypes"] = std::move(types);
}

void setLanguage(Dictionary& entry, io::ByteView payload) {
  const std::string_view text = payload.text();
  entry["MetadataKeyLanguageTag"] = model::utf8OrLatin1(text.substr(0, text.find('\0')));
}

void setSetupData(Dictionary& entry, io::ByteView payload) {
  entry["MetadataKeySetupData"] = dataOf(payload);
}

struct KeyBox {
  model::FourCharCode type;
  void (*set)(Dictionary&, io::ByteView);
};

constexpr KeyBox keyBoxes[] = {
    {fourCharCode("keyd"), setKey},
    {fourCharCode("dtyp"), setDataType},
    {fourCharCode("ctps"), setConformingTypes},
    {fourCharCode("loca"), setLanguage},
    {fourCharCode("setu"), setSetupData},
};

Dictionary readKey(const BoxView& key) {
  Dictionary entry = {{"MetadataKeyLocalID", key.type}};
  BoxViewWalk walk(key.payload);
  while (const auto box = walk.next()) {
    for (const KeyBox& known : keyBoxes) {
      if (known.type == box->type) known.set(entry, box->payload);
    }
  }
  return entry;
}

Dictionary readKeyTable(io::ByteView keys) {
  Dictionary table;
  BoxViewWalk walk(keys);
  while (const auto key = walk.next()) {
    if (table.size() == limits.metadataKeys) break;
    table[model::integerText(key->type)] = readKey(*key);
  }
  return table;
}

}  // namespace

model::FormatDescription metadataDescription(const SampleEntry& entry) {
  model::FormatDescription description;
  description.mediaType = entry.mediaType;
  description.mediaSubType = entry.box.type;
  constexpr std::uint64_t commonFields = 16;
  const auto keys = findPayload(entry.box.whole.from(commonFields), fourCharCode("keys"));
  if (entry.box.type == fourCharCode("mebx") && keys)
    description.extensions["MetadataKeyTable"] = readKeyTable(*keys);
  else
    setVerbatimEntry(description.extensions, entry);
  return description;
}

}  // namespace media::movie
