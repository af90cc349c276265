// SPDX-License-Identifier: MIT
//
// The outermost boxes are walked by their headers alone, eight or sixteen bytes each, so a film of
// gigabytes costs a few reads. The first box decides whether this is a movie at all and by which
// rules; the walk then notes the movie header and the fragments. A file is told to be damaged only
// if it claims to be a movie: other bytes may look like a box by chance.
#include "media/movie/boxes/movie_layout.h"

#include <algorithm>
#include <array>

#include "io/byte_view.h"
#include "media/movie/boxes/limits.h"

namespace media::movie {

namespace {

using model::FourCharCode;
using model::fourCharCode;

// What a movie may begin with where it has no "ftyp" (QuickTime File Format, "Overview").
constexpr FourCharCode firstBoxes[] = {
    fourCharCode("ftyp"), fourCharCode("moov"), fourCharCode("mdat"), fourCharCode("wide"),
    fourCharCode("free"), fourCharCode("skip"), fourCharCode("pnot"),
};

// What tells a movie from other bytes that happen to look like a box.
constexpr FourCharCode movieBoxes[] = {fourCharCode("ftyp"), fourCharCode("moov"),
                                       fourCharCode("mdat")};

// Major brands of stills, which the image readers know.
constexpr FourCharCode imageBrands[] = {
    fourCharCode("jpeg"), fourCharCode("jpgs"), fourCharCode("jp2 "), fourCharCode("jpx "),
    fourCharCode("jpm "), fourCharCode("jxl "), fourCharCode("crx "),
};

// Major brands of files that may hold stills, a sequence of images, or both. ISO/IEC 23008-12, 10.
constexpr FourCharCode sequenceBrands[] = {
    fourCharCode("heic"), fourCharCode("heix"), fourCharCode("heim"), fourCharCode("heis"),
    fourCharCode("hevc"), fourCharCode("hevx"), fourCharCode("hevm"), fourCharCode("hevs"),
    fourCharCode("mif1"), fourCharCode("mif2"), fourCharCode("msf1"), fourCharCode("avif"),
    fourCharCode("avis"), fourCharCode("avci"), fourCharCode("avcs"),
};

constexpr FourCharCode quickTimeBrand = fourCharCode("qt  ");

// A box at the outermost level. `end` lies behind the end of the file where the box is cut off.
struct OuterBox {
  FourCharCode type = 0;
  std::uint64_t payload = 0;
  std::uint64_t end = 0;
};

// Reads bytes one field at a time, so that a read never reaches into coded samples.
class OuterWalk {
 public:
  explicit OuterWalk(io::ByteSource& source) : _source(source) {}

  std::optional<OuterBox> next() {
    const auto header = read<8>(_offset);
    if (!header) return std::nullopt;
    const io::ByteView bytes(*header);
    std::uint64_t length = bytes.u32(0, io::ByteOrder::big).value_or(0);
    std::uint64_t headerSize = 8;
    if (length == 0) {
      length = _source.size() - _offset;
    } else if (length == 1) {
      const auto wide = read<8>(_offset + 8);
      if (!wide) return std::nullopt;
      length = io::ByteView(*wide).u64(0, io::ByteOrder::big).value_or(0);
      headerSize = 16;
    }
    if (length < headerSize) return std::nullopt;
    OuterBox box{bytes.u32(4, io::ByteOrder::big).value_or(0), _offset + headerSize, 0};
    if (__builtin_add_overflow(_offset, length, &box.end)) box.end = UINT64_MAX;
    _offset = box.end;
    return box;
  }

  std::optional<std::uint32_t> u32(std::uint64_t offset) {
    const auto bytes = read<4>(offset);
    return bytes ? io::ByteView(*bytes).u32(0, io::ByteOrder::big) : std::nullopt;
  }

  // Whether the file ends where a box has begun.
  bool endsInsideHeader() const { return _offset < _source.size() && _source.size() - _offset < 8; }

  const std::optional<model::Error>& failure() const { return _failure; }

 private:
  // Exactly so many bytes; none where the source ends earlier.
  template <std::size_t count>
  std::optional<std::array<std::uint8_t, count>> read(std::uint64_t offset) {
    if (offset >= _source.size() || _source.size() - offset < count) return std::nullopt;
    std::array<std::uint8_t, count> bytes{};
    const auto done = _source.readAt(offset, bytes);
    if (done && *done == count) return bytes;
    if (!_failure) _failure = done ? model::Error{"truncated while it was read"} : done.error();
    return std::nullopt;
  }

  io::ByteSource& _source;
  std::uint64_t _offset = 0;
  std::optional<model::Error> _failure;
};

// What has been seen of the outermost boxes so far.
struct Findings {
  MovieLayout layout;
  bool hasMovie = false;
  bool hasStill = false;     // has the item tables of stills
  bool claimsMovie = false;  // has a box that only movies have
  bool isCut = false;
};

void take(Findings& findings, const OuterBox& box, std::uint64_t fileSize) {
  const bool isCut = box.end > fileSize;
  findings.isCut |= isCut;
  const io::ByteRange range{std::min(box.payload, fileSize), std::min(box.end, fileSize)};
  auto& fragments = findings.layout.fragments;
  findings.claimsMovie |= std::ranges::count(movieBoxes, box.type) > 0;
  findings.hasStill |= box.type == fourCharCode("meta");
  if (box.type == fourCharCode("moov") && !findings.hasMovie) {
    findings.hasMovie = true;
    findings.layout.movie = range;
    findings.layout.isMovieCut = isCut;
  } else if (box.type == fourCharCode("moof") && fragments.size() < limits.fragments && !isCut) {
    fragments.push_back(range);
  }
}

// What the first box says of the file.
struct Kind {
  FileFormat format = FileFormat::quickTime;
  bool maybeStill = false;
};

// None where the file is no movie.
std::optional<Kind> kindOf(OuterWalk& walk, const OuterBox& first) {
  if (!std::ranges::count(firstBoxes, first.type)) return std::nullopt;
  if (first.type != fourCharCode("ftyp")) return Kind{};
  const FourCharCode brand = walk.u32(first.payload).value_or(0);
  if (std::ranges::count(imageBrands, brand)) return std::nullopt;
  if (brand == quickTimeBrand) return Kind{};
  return Kind{FileFormat::isoBaseMedia, std::ranges::count(sequenceBrands, brand) > 0};
}

}  // namespace

model::Result<std::optional<MovieLayout>> readMovieLayout(io::ByteSource& source) {
  OuterWalk walk(source);
  Findings findings;
  std::optional<Kind> kind;
  for (int count = 0; count < limits.topLevelBoxes; ++count) {
    const auto box = walk.next();
    if (!box) break;
    if (!kind) kind = kindOf(walk, *box);
    if (!kind) break;
    take(findings, *box, source.size());
  }
  if (walk.failure()) return *walk.failure();
  const bool isImage = kind && kind->maybeStill && (findings.hasStill || !findings.hasMovie);
  if (!kind || isImage || !findings.claimsMovie) return std::optional<MovieLayout>();
  findings.layout.format = kind->format;
  if (findings.hasMovie) return std::optional(std::move(findings.layout));
  if (findings.isCut || walk.endsInsideHeader()) return model::Error{"truncated movie"};
  return model::Error{"movie without a header (\"moov\")"};
}

}  // namespace media::movie
