// SPDX-License-Identifier: MIT
//
// Makes the seed corpus: make_corpus FOLDER SAMPLES writes every sample cut at each structural
// boundary, with each count set to 0, 1 and the largest, and each offset pointing to itself; the
// structures of raw files likewise; and what the readers of texts are given. Prints how many files
// it wrote; fails below the number given as a third argument.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/structure.h"
#include "fuzz/text_seeds.h"
#include "samples/formats/raw_files.h"
#include "samples/movies/small_movies.h"

namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;
using fuzz::Field;

// Coded pixels and sound tell the readers nothing: what lies behind this many bytes is left out
// where the structure ends earlier, and larger files only give a few seeds.
constexpr std::size_t codedTail = 64;
constexpr std::size_t largestSeed = std::size_t{256} * 1024;
constexpr std::size_t mostSeedsAFile = 400;
constexpr std::size_t mostBytesAFile = std::size_t{12} << 20;

void put(Bytes& bytes, const Field& field, std::uint64_t value) {
  for (std::size_t index = 0; index < field.width; ++index) {
    const std::size_t place = field.order == fuzz::ByteOrder::big ? field.width - 1 - index : index;
    if (field.at + place < bytes.size()) {
      bytes[field.at + place] = static_cast<std::uint8_t>(value >> (8 * index));
    }
  }
}

class Corpus {
 public:
  explicit Corpus(fs::path folder) : _folder(std::move(folder)) {
    fs::remove_all(_folder);
    fs::create_directories(_folder);
  }

  void addFile(const Bytes& original, const std::string& name) {
    const auto structure = fuzz::structureOf(fuzz::ByteView(original));
    const std::size_t total = 1 + structure.boundaries.size() + structure.fields.size() * 3;
    const std::size_t most = std::min(mostSeedsAFile, mostBytesAFile / (original.size() + 1) + 1);
    _name = name;
    _seed = 0;
    _stride = total / most + 1;
    write(original);
    for (const std::size_t boundary : structure.boundaries) {
      const std::size_t length = std::min(boundary, original.size());
      write(Bytes(original.begin(), original.begin() + static_cast<std::ptrdiff_t>(length)));
    }
    for (const Field& field : structure.fields) addDamaged(original, field);
  }

  void addText(const std::string& text, const std::string& name) {
    _name = name;
    _seed = 0;
    _stride = 1;
    write(Bytes(text.begin(), text.end()));
  }

  std::size_t written() const { return _written; }

 private:
  void addDamaged(const Bytes& original, const Field& field) {
    const auto values = field.kind == Field::Kind::count
                            ? std::vector<std::uint64_t>{0, 1, ~std::uint64_t{0}}
                            : std::vector<std::uint64_t>{field.at - field.base};
    for (const std::uint64_t value : values) {
      Bytes damaged = original;
      put(damaged, field, value);
      write(damaged);
    }
  }

  // Writes one seed; where a file has more than its share, every n-th.
  void write(const Bytes& bytes) {
    if (_seed++ % _stride != 0) return;
    std::ofstream file(_folder / (_name + "-" + std::to_string(_seed)), std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    ++_written;
  }

  fs::path _folder;
  std::string _name;
  std::size_t _seed = 0;
  std::size_t _stride = 1;
  std::size_t _written = 0;
};

// The file without what follows its last structural boundary; empty when it is too large a seed.
Bytes readSample(const fs::path& path) {
  if (fs::file_size(path) > (std::uintmax_t{1} << 30)) return {};
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> text{std::istreambuf_iterator<char>(file), {}};
  Bytes bytes(text.begin(), text.end());
  const auto structure = fuzz::structureOf(fuzz::ByteView(bytes));
  std::size_t end = 0;
  for (const std::size_t boundary : structure.boundaries) end = std::max(end, boundary);
  const bool coded = fuzz::ByteView(bytes).startsWith("\xFF\xD8");
  if (coded && bytes.size() > end + codedTail) bytes.resize(end + codedTail);
  if (bytes.size() > largestSeed) bytes.resize(largestSeed);
  return bytes;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) {
    std::fprintf(stderr, "usage: make_corpus FOLDER SAMPLES LEAST\n");
    return 2;
  }
  Corpus corpus(arguments[1]);
  for (const auto& entry : fs::recursive_directory_iterator(arguments[2])) {
    if (!entry.is_regular_file()) continue;
    const Bytes bytes = readSample(entry.path());
    if (!bytes.empty()) corpus.addFile(bytes, entry.path().filename().string());
  }
  for (const auto& [name, bytes] : samples::rawFiles()) corpus.addFile(bytes, name);
  for (const auto& [name, bytes] : samples::smallMovies()) corpus.addFile(bytes, name);
  for (const auto& [name, text] : fuzz::textSeeds()) corpus.addText(text, name);
  std::printf("%zu seeds\n", corpus.written());
  return corpus.written() < std::strtoul(arguments[3], nullptr, 10) ? 1 : 0;
}
