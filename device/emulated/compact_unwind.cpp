// SPDX-License-Identifier: MIT
//
// The section begins with a head that says where its tables lie. An index leads to pages of
// functions: a plain page gives offset and encoding of each, a compressed one a word with both, in
// which the encoding is an index into what all pages share or into what the page has of its own
// (<mach-o/compact_unwind_encoding.h>). The last row of the index only says where all ends.
#include "device/emulated/compact_unwind.h"

#include <map>

#include "device/loading/byte_cursor.h"

namespace device::emulated {
namespace {

using loading::ByteCursor;

constexpr std::uint32_t knownVersion = 1;
constexpr std::uint64_t indexRowSize = 12;  // bytes
constexpr std::uint32_t plainPage = 2;
constexpr std::uint32_t compressedPage = 3;

// Where a table lies in the section, and how many entries it has.
struct TablePlace {
  std::uint32_t offset = 0;
  std::uint32_t count = 0;
};

struct IndexRow {
  std::uint32_t begin = 0;     // of the page's first function
  std::uint32_t page = 0;      // 0: there is none
  std::uint32_t handlers = 0;  // where its rows begin in the table of all
};

TablePlace readTablePlace(ByteCursor& cursor) {
  TablePlace table{.offset = cursor.u32()};
  table.count = cursor.u32();
  return table;
}

class UnwindReader {
 public:
  explicit UnwindReader(io::ByteView section) : _section(section) {}

  model::Result<CompactUnwind> read() {
    ByteCursor head(_section);
    if (head.u32() != knownVersion) return model::Error{"unwind information of another version"};
    _shared = readTablePlace(head);
    const TablePlace personalities = readTablePlace(head);
    _index = readTablePlace(head);
    _isSound = !head.ranOut();
    _result.personalities = words(personalities);
    readPages();
    if (!_isSound) return model::Error{"damaged unwind information"};
    return std::move(_result);
  }

 private:
  // Takes what the use reads from an offset on. REQUIRES: it stops when nothing is left.
  template <typename Use>
  auto at(std::uint64_t offset, Use use) {
    ByteCursor cursor(_section.from(offset));
    const auto value = use(cursor);
    _isSound = _isSound && !cursor.ranOut();
    return value;
  }

  std::vector<std::uint32_t> words(TablePlace table) {
    return at(table.offset, [&](ByteCursor& cursor) {
      std::vector<std::uint32_t> list;
      while (list.size() < table.count && !cursor.ranOut()) list.push_back(cursor.u32());
      return list;
    });
  }

  IndexRow row(std::uint32_t number) {
    return at(_index.offset + number * indexRowSize, [](ByteCursor& cursor) {
      IndexRow row{.begin = cursor.u32()};
      row.page = cursor.u32();
      row.handlers = cursor.u32();
      return row;
    });
  }

  void readPages() {
    for (std::uint32_t number = 0; _isSound && number + 1 < _index.count; ++number) {
      const IndexRow page = row(number);
      const IndexRow next = row(number + 1);
      readHandlers(page.handlers, next.handlers);
      if (_isSound && page.page != 0) readPage(page);
    }
    if (_isSound && _index.count > 0) end(row(_index.count - 1).begin);
  }

  // Rows of a function and its table, up to the next page's.
  void readHandlers(std::uint32_t begin, std::uint32_t end) {
    const std::uint32_t count = end > begin ? (end - begin) / 8 : 0;
    const std::vector<std::uint32_t> pairs = words({begin, count * 2});
    for (std::size_t at = 0; at + 1 < pairs.size(); at += 2) _handlers[pairs[at]] = pairs[at + 1];
  }

  void readPage(const IndexRow& row) {
    struct Head {
      std::uint32_t kind = 0;
      TablePlace entries = {};
      TablePlace own = {};
    };
    const Head page = at(row.page, [&row](ByteCursor& cursor) {
      const auto pageTable = [&] {
        TablePlace table{.offset = row.page + cursor.u16()};
        table.count = cursor.u16();
        return table;
      };
      Head head{.kind = cursor.u32()};
      head.entries = pageTable();
      if (head.kind == compressedPage) head.own = pageTable();
      return head;
    });
    if (page.kind == plainPage)
      readPlain(page.entries);
    else if (page.kind == compressedPage)
      readCompressed(row.begin, page.entries, words(page.own));
    else
      _isSound = false;
  }

  void readPlain(TablePlace entries) {
    const std::vector<std::uint32_t> pairs = words({entries.offset, entries.count * 2});
    for (std::size_t at = 0; at + 1 < pairs.size(); at += 2) add(pairs[at], pairs[at + 1]);
  }

  void readCompressed(std::uint32_t base, TablePlace entries,
                      const std::vector<std::uint32_t>& own) {
    const std::vector<std::uint32_t> shared = words(_shared);
    for (const std::uint32_t entry : words(entries)) {
      const std::size_t index = entry >> 24;
      const auto& list = index < shared.size() ? shared : own;
      const std::size_t place = index < shared.size() ? index : index - shared.size();
      if (place >= list.size()) _isSound = false;
      if (_isSound) add(base + (entry & 0x00FF'FFFF), list[place]);
    }
  }

  void add(std::uint32_t begin, std::uint32_t encoding) {
    end(begin);
    if (!_isSound) return;
    const auto handlers = _handlers.find(begin);
    _result.functions.push_back(
        {begin, 0, encoding, handlers == _handlers.end() ? 0 : handlers->second});
  }

  // The last function so far ends where the next thing begins. That they ascend also bounds what
  // pages that lie on top of each other could make of a small section.
  void end(std::uint32_t offset) {
    if (_result.functions.empty()) return;
    UnwindFunction& last = _result.functions.back();
    last.end = offset;
    _isSound = _isSound && offset > last.begin;
  }

  io::ByteView _section;
  bool _isSound = true;
  TablePlace _shared;
  TablePlace _index;
  std::map<std::uint32_t, std::uint32_t> _handlers;
  CompactUnwind _result;
};

}  // namespace

model::Result<CompactUnwind> readCompactUnwind(io::ByteView section) {
  return UnwindReader(section).read();
}

}  // namespace device::emulated
