// SPDX-License-Identifier: MIT
#include "device/loading/fixups.h"
#include "device/loading/link_edit_tables.h"
#include "device/loading/rules.h"

namespace device::loading::fixup_rules {
namespace {

constexpr std::uint64_t pointerSize = 8;

bool isWritable(const MachLibrary& library, Place place) {
  if (place.segment >= library.segments.size()) return false;
  const Segment& segment = library.segments[place.segment];
  return (segment.protection & writable) != 0 && segment.size >= pointerSize &&
         place.offset <= segment.size - pointerSize;
}

struct Binds {
  const char* name;
  model::Result<std::vector<Bind>> read;
};

std::vector<Binds> allBinds(const MachLibrary& library) {
  std::vector<Binds> all;
  const auto add = [&](const Table& table, BindTime time) {
    all.push_back({table.name, readBinds(library.bytesOf(table), time)});
  };
  add(bindTable(library), BindTime::atOnce);
  add(weakBindTable(library), BindTime::atOnce);
  add(lazyBindTable(library), BindTime::atFirstCall);
  return all;
}

// The weak ones look everywhere, whatever they say of a library.
bool namesLibrary(const MachLibrary& library, const Bind& bind) {
  return bind.ordinal >= 1 && bind.ordinal <= std::ssize(library.dependencies);
}

}  // namespace

Problem rebases(const Subject& subject) {
  const MachLibrary& library = subject.library;
  const auto places = readRebases(library.bytesOf(rebaseTable(library)));
  if (!places) return places.error().reason;
  for (const Place& place : *places)
    if (!isWritable(library, place)) return "a pointer lies where nothing can be written";
  return {};
}

Problem binds(const Subject& subject) {
  for (const Binds& binds : allBinds(subject.library)) {
    if (!binds.read) return std::string(binds.name) + ": " + binds.read.error().reason;
    for (const Bind& bind : *binds.read)
      if (!isWritable(subject.library, bind.place))
        return bind.symbol + " is bound where nothing can be written";
  }
  return {};
}

Problem ordinals(const Subject& subject) {
  const Table weak = weakBindTable(subject.library);
  for (const Binds& binds : allBinds(subject.library)) {
    if (!binds.read || binds.name == weak.name) continue;
    for (const Bind& bind : *binds.read)
      if (!namesLibrary(subject.library, bind)) return bind.symbol + " is bound to no library";
  }
  return {};
}

}  // namespace device::loading::fixup_rules
