// SPDX-License-Identifier: MIT
//
// The keys under which movies state the same facts, and the common key of each fact.
#pragma once

#include <optional>
#include <string_view>

namespace media::movie {

// Where a metadata key comes from. Of one fact in several spaces, that of the first is taken.
enum class KeySpace {
  quickTimeMetadata,  // "com.apple.quicktime.make", in a "meta" box of handler mdta
  iTunes,             // a9 'nam', in the "ilst" of a "meta" box of handler mdir
  quickTimeUserData,  // a9 'mak', in "udta"
  threeGpp,           // 'titl', in "udta" (3GPP TS 26.244, clause 8)
};

// A key's fact ("make", "location", ...), and which of several keys of one space wins: lower first.
struct CommonKey {
  std::string_view name;
  int rank;
};

// None for keys that stand for no common fact.
std::optional<CommonKey> findCommonKey(KeySpace space, std::string_view key);

}  // namespace media::movie
