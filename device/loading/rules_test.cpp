// SPDX-License-Identifier: MIT
//
// rules_test LIBRARY VERSIONS
// A sound library is taken. Then each rule is broken by itself, in a copy, and must be named; and
// no damage to the bytes may do more than be refused. The hashes of the signature see every damage,
// so they may be named besides.
#include "device/loading/rules.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <set>

#include "device/loading/file_bytes.h"
#include "device/loading/link_edit_tables.h"

namespace {

using namespace device::loading;

int failures = 0;

void fail(const std::string& text) {
  std::cerr << "rules_test: " << text << '\n';
  ++failures;
}

// A copy of a library to do damage to. Offsets into it are those of the file.
struct Copy {
  Bytes bytes;

  MachLibrary library() const { return readMachLibrary(io::ByteView(bytes)); }

  // The offset of the first command of a kind, or of the segment of a name.
  std::size_t command(CommandKind kind) const { return offsetOf(*library().first(kind)); }
  std::size_t segment(std::size_t index) const {
    return offsetOf(*library().all(CommandKind::segment).at(index));
  }
  std::size_t lastSegment() const { return segment(library().segments.size() - 1); }

  std::uint32_t word(std::size_t at) const {
    return io::ByteView(bytes).u32(at, io::ByteOrder::little).value();
  }
  void setWord(std::size_t at, std::uint32_t value) {
    for (std::size_t byte = 0; byte < 4; ++byte)
      bytes.at(at + byte) = static_cast<std::uint8_t>(value >> (8 * byte));
  }
  void add(std::size_t at, std::uint32_t amount) { setWord(at, word(at) + amount); }
  void setByte(std::size_t at, int value) { bytes.at(at) = static_cast<std::uint8_t>(value); }

  std::size_t offsetOf(const Command& command) const {
    return static_cast<std::size_t>(command.bytes.bytes().data() - bytes.data());
  }
};

using Names = std::set<std::string_view>;

struct Damage {
  const char* rule;
  const char* what;
  std::function<void(Copy&)> apply;
  Names also = {};  // rules that no such damage leaves whole
};

constexpr auto dyld = CommandKind::dyldInfoOnly;
constexpr auto symbols = CommandKind::symbolTable;
constexpr auto signature = CommandKind::codeSignature;
constexpr auto system = CommandKind::buildVersion;

// Where the signature's code directory begins.
std::size_t directoryOf(const Copy& copy) {
  const std::size_t list = copy.word(copy.command(signature) + 8);
  return list + io::ByteView(copy.bytes).u32(list + 16, io::ByteOrder::big).value();
}

// The opcode that names the library of the first lazy bind: behind a segment and an offset.
std::size_t lazyOrdinalOf(const Copy& copy) {
  std::size_t at = copy.word(copy.command(dyld) + 32) + 1;
  while ((copy.bytes.at(at) & 0x80) != 0) ++at;
  return at + 1;
}

const Damage damages[] = {
    {"header.kind", "another magic", [](Copy& copy) { copy.setWord(0, 0xFEEDFACE); }},
    {"header.kind", "another processor", [](Copy& copy) { copy.setWord(4, 0x01000007); }},
    {"header.kind", "arm64e", [](Copy& copy) { copy.setWord(8, 2); }},
    {"header.kind", "a bundle", [](Copy& copy) { copy.setWord(12, 8); }},
    {"header.load-commands", "a stated size too large", [](Copy& copy) { copy.add(20, 8); }},
    {"header.load-commands", "a command too many", [](Copy& copy) { copy.setWord(16, 10000); }},
    {"header.load-commands", "a size that is no multiple of 8",
     [](Copy& copy) {
       copy.add(copy.command(signature) + 4, 4);
       copy.add(20, 4);
     }},
    {"segments.text", "another name", [](Copy& copy) { copy.setByte(copy.segment(0) + 10, 'X'); }},
    {"segments.text", "a text that is written to",
     [](Copy& copy) { copy.setWord(copy.segment(0) + 60, 7); }},
    {"segments.text", "a text that may be written to",
     [](Copy& copy) { copy.setWord(copy.segment(0) + 56, 7); }},
    {"segments.text", "a text that is not executed",
     [](Copy& copy) { copy.setWord(copy.segment(0) + 60, 1); }},
    {"segments.text", "a text that maps no header",
     [](Copy& copy) { copy.setWord(copy.segment(0) + 40, 16384); }},
    {"segments.link-edit", "another name",
     [](Copy& copy) { copy.setByte(copy.lastSegment() + 10, 'X'); }},
    {"segments.link-edit", "a link edit that is written to",
     [](Copy& copy) { copy.setWord(copy.lastSegment() + 60, 3); }},
    {"segments.file-ranges", "a segment beyond the file",
     [](Copy& copy) { copy.setWord(copy.segment(1) + 44, 1); }},
    {"segments.file-ranges", "a segment larger than its memory",
     [](Copy& copy) { copy.setWord(copy.lastSegment() + 32, 8); }},
    {"segments.address-ranges", "an address inside a page",
     [](Copy& copy) { copy.add(copy.lastSegment() + 24, 4096); }},
    {"segments.address-ranges", "a segment over another",
     [](Copy& copy) { copy.setWord(copy.lastSegment() + 24, copy.word(copy.segment(1) + 24)); }},
    {"segments.address-ranges", "a segment over the end of memory",
     [](Copy& copy) {
       copy.setWord(copy.lastSegment() + 24, 0xFFFFC000);
       copy.setWord(copy.lastSegment() + 28, 0xFFFFFFFF);
       copy.setWord(copy.lastSegment() + 32, 0x10000);
     }},
    {"segments.sections", "a section outside of its segment",
     [](Copy& copy) { copy.setWord(copy.segment(0) + 72 + 36, 1); }},
    {"segments.sections", "a section larger than its segment",
     [](Copy& copy) { copy.setWord(copy.segment(0) + 72 + 44, 1); }},
    {"link-edit.form", "no loader information",
     [](Copy& copy) { copy.setWord(copy.command(dyld), 0x7F); }},
    {"link-edit.form", "loader information twice",
     [](Copy& copy) { copy.setWord(copy.command(CommandKind::uuid), 0x22); }},
    {"link-edit.form", "chained fixups",
     [](Copy& copy) { copy.setWord(copy.command(CommandKind::uuid), 0x80000034); }},
    {"link-edit.form", "no symbol table",
     [](Copy& copy) { copy.setWord(copy.command(symbols), 1); }},
    {"link-edit.place",
     "rebases in the text",
     [](Copy& copy) { copy.setWord(copy.command(dyld) + 8, 64); },
     {"fixups.rebases"}},
    {"link-edit.place",
     "strings beyond the segment",
     [](Copy& copy) { copy.setWord(copy.command(symbols) + 20, 1 << 20); },
     {"link-edit.order"}},
    {"link-edit.order", "symbols over the function starts",
     [](Copy& copy) {
       copy.setWord(copy.command(symbols) + 8,
                    copy.word(copy.command(CommandKind::functionStarts) + 8));
     }},
    {"link-edit.alignment", "strings inside of 8 bytes",
     [](Copy& copy) {
       copy.add(copy.command(symbols) + 16, 4);
       copy.add(copy.command(symbols) + 20, ~3U);
     }},
    {"fixups.rebases", "a pointer in the text",
     [](Copy& copy) { copy.setByte(copy.word(copy.command(dyld) + 8) + 1, 0x20); }},
    {"fixups.rebases", "a pointer in no segment",
     [](Copy& copy) { copy.setByte(copy.word(copy.command(dyld) + 8) + 1, 0x2F); }},
    {"fixups.rebases", "an unknown opcode",
     [](Copy& copy) { copy.setByte(copy.word(copy.command(dyld) + 8), 0xF0); }},
    {"fixups.rebases", "opcodes that are cut short",
     [](Copy& copy) { copy.setWord(copy.command(dyld) + 12, 2); }},
    {"fixups.binds", "a symbol bound in the text",
     [](Copy& copy) { copy.setByte(copy.word(copy.command(dyld) + 32), 0x70); }},
    {"fixups.binds", "an unknown opcode",
     [](Copy& copy) { copy.setByte(copy.word(copy.command(dyld) + 16), 0xE0); }},
    {"fixups.ordinals", "a library that is not there",
     [](Copy& copy) { copy.setByte(lazyOrdinalOf(copy), 0x1F); }},
    {"fixups.ordinals", "any library", [](Copy& copy) { copy.setByte(lazyOrdinalOf(copy), 0x3E); }},
    {"identity.name", "no name",
     [](Copy& copy) { copy.setWord(copy.command(CommandKind::libraryIdentity), 0x7F); }},
    {"identity.system", "another system",
     [](Copy& copy) { copy.setWord(copy.command(system) + 8, 1); }},
    {"identity.system", "a newer system",
     [](Copy& copy) { copy.setWord(copy.command(system) + 12, 12 << 16 | 1 << 8); }},
    {"identity.system", "no system", [](Copy& copy) { copy.setWord(copy.command(system), 0x7F); }},
    {"identity.encryption", "an encrypted text",
     [](Copy& copy) { copy.setWord(copy.command(CommandKind::encryption64) + 16, 1); }},
    {"identity.required-versions", "a newer library than the phone's",
     [](Copy& copy) { copy.add(copy.command(CommandKind::loadLibrary) + 20, 1000 << 16); }},
    {"identity.required-versions", "a library that the phone lacks",
     [](Copy& copy) { copy.setByte(copy.command(CommandKind::loadLibrary) + 24, 'X'); }},
    {"signature.place",
     "no signature",
     [](Copy& copy) { copy.setWord(copy.command(signature), 0x7F); },
     {"signature.directory"}},
    {"signature.place", "bytes behind the signature",
     [](Copy& copy) { copy.bytes.resize(copy.bytes.size() + 16); }},
    {"signature.place",
     "a signature inside of 16 bytes",
     [](Copy& copy) {
       copy.add(copy.command(signature) + 8, 8);
       copy.add(copy.command(signature) + 12, ~7U);
     },
     {"signature.directory"}},
    {"signature.directory", "no code directory",
     [](Copy& copy) { copy.setByte(directoryOf(copy), 0); }},
    {"signature.directory", "another hash",
     [](Copy& copy) { copy.setByte(directoryOf(copy) + 37, 1); }},
    {"signature.directory", "a page too few",
     [](Copy& copy) { copy.bytes.at(directoryOf(copy) + 31)--; }},
    {"signature.directory", "less than all that lies before it",
     [](Copy& copy) { copy.bytes.at(directoryOf(copy) + 35) ^= 0x10; }},
    {"signature.hashes", "another byte of the text",
     [](Copy& copy) { copy.bytes.at(copy.library().segments[1].fileOffset - 1) ^= 1; }},
    {"signature.hashes", "another hash",
     [](Copy& copy) { copy.bytes.at(copy.bytes.size() / 2) ^= 1; }},
};

Names refusedBy(const Bytes& bytes, const LibraryVersions& versions) {
  const MachLibrary library = readMachLibrary(io::ByteView(bytes));
  Names names;
  for (const Refusal& refusal : refusalsOf({library, versions})) names.insert(refusal.rule);
  return names;
}

std::string joined(const Names& names) {
  std::string text;
  for (const std::string_view name : names) text += std::string(name) + " ";
  return text;
}

void testSoundLibraryIsTaken(const Bytes& sound, const LibraryVersions& versions) {
  const Names names = refusedBy(sound, versions);
  if (!names.empty()) fail("a sound library is refused by " + joined(names));
}

void testEachDamageIsNamed(const Bytes& sound, const LibraryVersions& versions) {
  for (const Damage& damage : damages) {
    Copy copy{sound};
    damage.apply(copy);
    Names names = refusedBy(copy.bytes, versions);
    if (names.erase(damage.rule) == 0)
      fail(damage.what + std::string(" is not refused by ") + damage.rule);
    for (const std::string_view name : damage.also) names.erase(name);
    names.erase("signature.hashes");
    if (!names.empty()) fail(damage.what + std::string(" is refused by ") + joined(names) + "too");
  }
}

void testEachRuleIsBroken() {
  Names unbroken;
  for (const Rule& rule : allRules())
    if (!unbroken.insert(rule.name).second) fail("two rules are " + std::string(rule.name));
  for (const Damage& damage : damages) unbroken.erase(damage.rule);
  if (!unbroken.empty()) fail("nothing breaks " + joined(unbroken));
}

// Every cut among the load commands, and some of the rest.
void testCutFilesAreRefused(const Bytes& sound, const LibraryVersions& versions) {
  const std::size_t fine = Header::size + Copy{sound}.library().header.commandsSize;
  for (std::size_t size = 0; size < sound.size(); size += size < fine ? 1 : 4999) {
    const Bytes cut(sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(size));
    if (refusedBy(cut, versions).empty())
      fail("cut to " + std::to_string(size) + " bytes it is taken");
  }
}

void testDamagedCommandsAreRefused(const Bytes& sound, const LibraryVersions& versions) {
  const std::size_t end = Header::size + Copy{sound}.library().header.commandsSize;
  for (std::size_t at = 0; at < end; ++at) {
    Copy copy{sound};
    copy.bytes[at] ^= 0xFF;
    if (refusedBy(copy.bytes, versions).empty())
      fail("with byte " + std::to_string(at) + " changed it is taken");
  }
}

void testVersionsAreRead() {
  const auto versions = parseLibraryVersions("# Comment\n/a\t150.2.3\n/b\t0.0.0\n");
  if (!versions || versions->at("/a") != (150 << 16 | 2 << 8 | 3) || versions->at("/b") != 0)
    fail("a table of versions is not read");
  for (const char* refused : {"/a", "/a\t1.0", "/a\t1.0.256", "/a\t65536.0.0", "/a\t1.0.0 ",
                              "/a\t1.0.0\n/a\t2.0.0", "/a\t1..0", "/a\t-1.0.0"})
    if (parseLibraryVersions(refused)) fail(std::string("a table is read of: ") + refused);
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return EXIT_FAILURE;
  const auto sound = readFileBytes(arguments[1]);
  const auto versions = readLibraryVersions(arguments[2]);
  if (!sound || !versions) return EXIT_FAILURE;
  testSoundLibraryIsTaken(*sound, *versions);
  testEachDamageIsNamed(*sound, *versions);
  testEachRuleIsBroken();
  testCutFilesAreRefused(*sound, *versions);
  testDamagedCommandsAreRefused(*sound, *versions);
  testVersionsAreRead();
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
