// SPDX-License-Identifier: MIT
//
// A library for arm64 Linux that stands in for the phone's: NAME.so, when a host maps it, maps the
// NAME.dylib beside it, completes its pointers with what the host has, lets exceptions pass through
// its functions, and runs its initialiser. What the phone's loader would refuse ends the process
// with a line that says why.
//
// The host sees what it sees of any extension, and none of its code knows of the difference. Two
// differences of the calling conventions are bridged (messages, variadic arguments); a third is
// not met: a ninth argument would be looked for in another place.
#include <dlfcn.h>

#include <cstdlib>
#include <cstring>
#include <iostream>
#include <optional>

#include "device/emulated/compact_unwind.h"
#include "device/emulated/dwarf_frames.h"
#include "device/emulated/host_symbols.h"
#include "device/emulated/mapped_image.h"
#include "device/emulated/system_log.h"
#include "device/loading/file_bytes.h"
#include "device/loading/rules.h"

extern "C" void __register_frame(const void* frames);

namespace device::emulated {
namespace {

using loading::MachLibrary;
using loading::Section;
using Failure = std::optional<model::Error>;
using Image = std::span<const std::uint8_t>;

// The first rule of the phone's loader that is broken.
Failure refusalOf(const MachLibrary& library) {
  const auto versions = loading::readLibraryVersions(LIBRARY_VERSIONS);
  if (!versions) return versions.error();
  const auto refusals = loading::refusalsOf({library, *versions});
  if (refusals.empty()) return std::nullopt;
  return model::Error{std::string(refusals[0].rule) + ": " + refusals[0].reason};
}

// Null where there is no section of this name.
const Section* sectionOf(const MachLibrary& library, std::string_view name) {
  for (const loading::Segment& segment : library.segments)
    for (const Section& section : segment.sections)
      if (section.name == name) return &section;
  return nullptr;
}

std::uint64_t pointerAt(Image image, std::uint64_t address) {
  std::uint64_t pointer = 0;
  if (address + sizeof pointer <= image.size())
    std::memcpy(&pointer, &image[address], sizeof pointer);
  return pointer;
}

// The frames stay: whoever raises looks for them.
Failure registerFrames(const MachLibrary& library, Image image) {
  const Section* section = sectionOf(library, "__unwind_info");
  if (!section) return std::nullopt;
  const auto unwind = readCompactUnwind(image.subspan(section->address, section->size));
  if (!unwind) return unwind.error();
  std::vector<std::uint64_t> personalities;
  for (const std::uint32_t address : unwind->personalities)
    personalities.push_back(pointerAt(image, address));
  auto frames = dwarfFrames(*unwind, reinterpret_cast<std::uint64_t>(image.data()), personalities);
  if (!frames) return frames.error();
  __register_frame((new std::vector(*std::move(frames)))->data());
  return std::nullopt;
}

void runInitialisers(const MachLibrary& library, Image image) {
  const Section* section = sectionOf(library, "__mod_init_func");
  if (!section) return;
  for (std::uint64_t offset = 0; offset < section->size; offset += sizeof(std::uint64_t))
    reinterpret_cast<void (*)()>(pointerAt(image, section->address + offset))();
}

Failure load(const std::string& path) {
  const auto bytes = loading::readFileBytes(path);
  if (!bytes) return bytes.error();
  const MachLibrary library = loading::readMachLibrary(io::ByteView(*bytes));
  if (const Failure refused = refusalOf(library)) return refused;
  const auto image = mapImage(library, hostSymbol);
  if (!image) return image.error();
  setLoggingImage(*image);
  if (const Failure failed = registerFrames(library, *image)) return failed;
  runInitialisers(library, *image);
  return std::nullopt;
}

std::string pathBesideThis() {
  Dl_info own{};
  dladdr(reinterpret_cast<const void*>(&pathBesideThis), &own);
  const std::string path = own.dli_fname;
  return path.substr(0, path.rfind('.')) + ".dylib";
}

__attribute__((constructor)) void loadWhatThisStandsFor() {
  const std::string path = pathBesideThis();
  const Failure failed = load(path);
  if (!failed) return;
  std::cerr << path << ": " << failed->reason << std::endl;
  std::_Exit(EXIT_FAILURE);
}

}  // namespace
}  // namespace device::emulated
