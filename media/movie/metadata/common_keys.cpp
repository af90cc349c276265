// SPDX-License-Identifier: MIT
#include "media/movie/metadata/common_keys.h"

#include <iterator>

namespace media::movie {

namespace {

struct Row {
  std::string_view commonKey;
  KeySpace space;
  std::string_view key;
};

using enum KeySpace;

// Where two keys of one space name one fact, the upper one wins.
constexpr Row rows[] = {
    {"albumName", quickTimeMetadata, "com.apple.quicktime.album"},
    {"albumName", quickTimeUserData,
     "\xa9"
     "alb"},
    {"albumName", iTunes,
     "\xa9"
     "alb"},
    {"albumName", threeGpp, "albm"},
    {"artist", quickTimeMetadata, "com.apple.quicktime.artist"},
    {"artist", quickTimeUserData,
     "\xa9"
     "ART"},
    {"artist", iTunes,
     "\xa9"
     "ART"},
    {"artist", threeGpp, "perf"},
    {"artwork", quickTimeMetadata, "com.apple.quicktime.artwork"},
    {"artwork", iTunes, "covr"},
    {"author", quickTimeMetadata, "com.apple.quicktime.author"},
    {"author", quickTimeUserData,
     "\xa9"
     "aut"},
    {"author", threeGpp, "auth"},
    {"copyrights", quickTimeMetadata, "com.apple.quicktime.copyright"},
    {"copyrights", quickTimeUserData,
     "\xa9"
     "cpy"},
    {"copyrights", iTunes, "cprt"},
    {"copyrights", threeGpp, "cprt"},
    {"creationDate", quickTimeMetadata, "com.apple.quicktime.creationdate"},
    {"creationDate", quickTimeUserData,
     "\xa9"
     "day"},
    {"creationDate", threeGpp, "yrrc"},
    {"description", quickTimeMetadata, "com.apple.quicktime.description"},
    {"description", quickTimeUserData,
     "\xa9"
     "des"},
    {"description", quickTimeUserData,
     "\xa9"
     "inf"},
    {"description", threeGpp, "dscp"},
    {"identifier", quickTimeMetadata, "com.apple.quicktime.content.identifier"},
    {"location", quickTimeMetadata, "com.apple.quicktime.location.ISO6709"},
    {"location", quickTimeUserData,
     "\xa9"
     "xyz"},
    {"location", threeGpp, "loci"},
    {"make", quickTimeMetadata, "com.apple.quicktime.make"},
    {"make", quickTimeUserData,
     "\xa9"
     "mak"},
    {"model", quickTimeMetadata, "com.apple.quicktime.model"},
    {"model", quickTimeUserData,
     "\xa9"
     "mod"},
    {"publisher", quickTimeMetadata, "com.apple.quicktime.publisher"},
    {"publisher", quickTimeUserData,
     "\xa9"
     "pub"},
    {"software", quickTimeMetadata, "com.apple.quicktime.software"},
    {"software", quickTimeUserData,
     "\xa9"
     "swr"},
    {"software", iTunes,
     "\xa9"
     "too"},
    {"title", quickTimeMetadata, "com.apple.quicktime.title"},
    {"title", quickTimeMetadata, "com.apple.quicktime.displayname"},
    {"title", quickTimeUserData,
     "\xa9"
     "nam"},
    {"title", iTunes,
     "\xa9"
     "nam"},
    {"title", threeGpp, "titl"},
};

// Every key once in its space, the facts in alphabetical order.
constexpr bool isConsistent() {
  for (std::size_t index = 0; index < std::size(rows); ++index) {
    if (index > 0 && rows[index].commonKey < rows[index - 1].commonKey) return false;
    for (std::size_t other = index + 1; other < std::size(rows); ++other) {
      if (rows[index].space == rows[other].space && rows[index].key == rows[other].key)
        return false;
    }
  }
  return true;
}
static_assert(isConsistent());

}  // namespace

std::optional<CommonKey> findCommonKey(KeySpace space, std::string_view key) {
  for (int rank = 0; rank < static_cast<int>(std::size(rows)); ++rank) {
    const Row& row = rows[rank];
    if (row.space == space && row.key == key) return CommonKey{row.commonKey, rank};
  }
  return std::nullopt;
}

}  // namespace media::movie
