// SPDX-License-Identifier: MIT
#include "media/movie/boxes/box_view.h"

namespace media::movie {

std::optional<BoxView> BoxViewWalk::next() {
  const auto size = _rest.u32(0, io::ByteOrder::big);
  const auto type = _rest.u32(4, io::ByteOrder::big);
  if (!size || !type || *size < 8) return std::nullopt;
  const auto whole = _rest.sub(0, *size);
  if (!whole) return std::nullopt;
  _rest = _rest.from(*size);
  return BoxView{*type, *whole, whole->from(8)};
}

std::optional<io::ByteView> findPayload(io::ByteView bytes, model::FourCharCode type) {
  BoxViewWalk walk(bytes);
  while (const auto box = walk.next()) {
    if (box->type == type) return box->payload;
  }
  return std::nullopt;
}

}  // namespace media::movie
