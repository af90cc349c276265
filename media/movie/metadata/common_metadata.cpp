// SPDX-License-Identifier: MIT
//
// One fact may stand in up to four places: QuickTime's metadata, iTunes', user data, 3GPP's boxes.
// All are walked in whatever order the file has them, and each find is offered with the rank of its
// place and key; a better one replaces it. A value is read only when it would win, and within a
// budget of bytes for the whole file, as pictures of covers can be large.
#include "media/movie/metadata/common_metadata.h"

#include <map>
#include <string>

#include "media/movie/metadata/common_keys.h"
#include "media/movie/metadata/metadata_value.h"

namespace media::movie {

namespace {

using model::FourCharCode;
using model::fourCharCode;
using model::Value;

using io::ByteOrder::big;

// The best value of each fact so far.
class Items {
 public:
  // Takes the value if it is better than the one known: from a better space, or a better key of
  // the same space. `read` is called only then.
  template <typename Read>
  void offer(KeySpace space, const CommonKey& key, Read read) {
    const Place place{space, key.rank};
    const auto known = _items.find(key.name);
    if (known != _items.end() && known->second.place <= place) return;
    std::optional<Value> value = read();
    if (value) _items.insert_or_assign(key.name, Item{place, std::move(*value)});
  }

  std::vector<model::MetadataItem> take() {
    std::vector<model::MetadataItem> items;
    for (auto& [key, item] : _items) items.push_back({std::string(key), std::move(item.value)});
    return items;
  }

 private:
  using Place = std::pair<KeySpace, int>;
  struct Item {
    Place place;
    Value value;
  };
  std::map<std::string_view, Item> _items;
};

std::string bytesOf(FourCharCode code) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>((code >> shift) & 0xFF);
  return bytes;
}

std::uint64_t longestValue(std::string_view commonKey) {
  return commonKey == "artwork" ? limits.artworkBytes : limits.textBytes;
}

// The bytes of a value, where neither it nor all values together are too large.
std::optional<io::ByteView> valueBytes(MovieWalk& walk, const io::IsoBox& box,
                                       std::uint64_t longest) {
  const std::uint64_t size = box.payload.size();
  if (size > longest || size > walk.budget.metadataBytes) return std::nullopt;
  walk.budget.metadataBytes -= size;
  return io::boxBytes(walk.reader, box, longest);
}

// The value of an item of an "ilst": its first "data" box.
std::optional<Value> readItem(MovieWalk& walk, const io::IsoBox& item, std::string_view commonKey) {
  std::optional<Value> value;
  forEachBox(walk, item.payload, [&](const io::IsoBox& box) {
    if (value || !box.is("data")) return;
    if (const auto bytes = valueBytes(walk, box, longestValue(commonKey)))
      value = typedValue(*bytes);
  });
  return value;
}

// The common keys of a key table ("keys") by their place, from 1 on; none for keys without one.
std::vector<std::optional<CommonKey>> readKeys(MovieWalk& walk, const io::IsoBox& table) {
  std::vector<std::optional<CommonKey>> keys = {std::nullopt};
  const auto bytes = io::boxBytes(walk.reader, table, limits.keyTableBytes);
  if (!bytes) return keys;
  const std::uint32_t count = bytes->u32(4, big).value_or(0);
  std::uint64_t offset = 8;
  while (keys.size() <= std::min<std::size_t>(count, limits.metadataKeys)) {
    const std::uint32_t size = bytes->u32(offset, big).value_or(0);
    const auto key = bytes->sub(offset, size);
    if (!key || size < 8) break;
    const bool isReverseDomain = key->u32(4, big) == fourCharCode("mdta");
    keys.push_back(isReverseDomain ? findCommonKey(KeySpace::quickTimeMetadata, key->from(8).text())
                                   : std::nullopt);
    offset += size;
  }
  return keys;
}

void readKeyedItems(MovieWalk& walk, const io::IsoBox& keyTable, const io::IsoBox& list,
                    Items& items) {
  const auto keys = readKeys(walk, keyTable);
  forEachBox(walk, list.payload, [&](const io::IsoBox& item) {
    if (item.type >= keys.size() || !keys[item.type]) return;
    const CommonKey key = *keys[item.type];
    items.offer(KeySpace::quickTimeMetadata, key, [&] { return readItem(walk, item, key.name); });
  });
}

void readNamedItems(MovieWalk& walk, const io::IsoBox& list, Items& items) {
  forEachBox(walk, list.payload, [&](const io::IsoBox& item) {
    const auto key = findCommonKey(KeySpace::iTunes, bytesOf(item.type));
    if (key) items.offer(KeySpace::iTunes, *key, [&] { return readItem(walk, item, key->name); });
  });
}

// The boxes of a "meta" box, which is a full box in ISO files only.
io::ByteRange insideMeta(MovieWalk& walk, const io::IsoBox& meta) {
  const io::ByteView head = headOfBox(walk, meta, 8);
  return head.u32(4, big) == fourCharCode("hdlr") ? meta.payload : io::fullBoxBody(meta);
}

void readMetaBox(MovieWalk& walk, const io::IsoBox& meta, Items& items) {
  std::optional<io::IsoBox> handler;
  std::optional<io::IsoBox> keys;
  std::optional<io::IsoBox> list;
  forEachBox(walk, insideMeta(walk, meta), [&](const io::IsoBox& box) {
    if (box.is("hdlr")) handler = box;
    if (box.is("keys")) keys = box;
    if (box.is("ilst")) list = box;
  });
  if (!handler || !list) return;
  constexpr std::uint64_t typeOffset = 8;
  const io::ByteView head = headOfBox(walk, *handler, 12);
  const auto type = head.u32(typeOffset, big);
  if (type == fourCharCode("mdta") && keys) readKeyedItems(walk, *keys, *list, items);
  if (type == fourCharCode("mdir")) readNamedItems(walk, *list, items);
}

std::optional<Value> readUserDatum(MovieWalk& walk, KeySpace space, const io::IsoBox& box) {
  const auto bytes = valueBytes(walk, box, limits.textBytes);
  if (!bytes) return std::nullopt;
  return space == KeySpace::threeGpp ? threeGppValue(bytesOf(box.type), *bytes)
                                     : internationalText(*bytes);
}

void readUserData(MovieWalk& walk, const io::IsoBox& userData, Items& items) {
  forEachBox(walk, userData.payload, [&](const io::IsoBox& box) {
    if (box.is("meta")) readMetaBox(walk, box, items);
    for (const KeySpace space : {KeySpace::quickTimeUserData, KeySpace::threeGpp}) {
      if (const auto key = findCommonKey(space, bytesOf(box.type)))
        items.offer(space, *key, [&] { return readUserDatum(walk, space, box); });
    }
  });
}

}  // namespace

std::vector<model::MetadataItem> readCommonMetadata(MovieWalk& walk,
                                                    const std::optional<io::IsoBox>& metadata,
                                                    const std::optional<io::IsoBox>& userData) {
  Items items;
  if (metadata) readMetaBox(walk, *metadata, items);
  if (userData) readUserData(walk, *userData, items);
  return items.take();
}

}  // namespace media::movie
