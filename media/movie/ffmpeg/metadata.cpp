// SPDX-License-Identifier: MIT
#include "media/movie/ffmpeg/metadata.h"

#include "model/utf8.h"

namespace media::movie {

namespace {

struct Tag {
  const char* commonKey;
  const char* tag;  // FFmpeg's generic name; its case does not count
};

// In the order of the common keys. The upper of two tags of one key wins.
constexpr Tag tags[] = {
    {"albumName", "album"},
    {"artist", "artist"},
    {"author", "author"},
    {"copyrights", "copyright"},
    {"creationDate", "creation_time"},
    {"creationDate", "date"},
    {"description", "description"},
    {"location", "location"},
    {"make", "make"},
    {"model", "model"},
    {"publisher", "publisher"},
    {"software", "encoder"},
    {"title", "title"},
};

}  // namespace

std::vector<model::MetadataItem> commonMetadataOf(const AVDictionary* dictionary) {
  std::vector<model::MetadataItem> items;
  for (const Tag& tag : tags) {
    const AVDictionaryEntry* entry = av_dict_get(dictionary, tag.tag, nullptr, 0);
    if (entry == nullptr || entry->value[0] == '\0') continue;
    if (!items.empty() && items.back().commonKey == tag.commonKey) continue;
    items.push_back({tag.commonKey, model::Value(model::replacingInvalidUtf8(entry->value))});
  }
  return items;
}

}  // namespace media::movie
