// SPDX-License-Identifier: MIT
#include "io/library_file.h"

#include <elf.h>
#include <gtest/gtest.h>
#include <link.h>

#include <cstddef>
#include <cstring>
#include <limits>
#include <random>

#include "tests/support/library_cuts.h"
#include "tests/support/temporary_folder.h"

namespace io {
namespace {

std::string reasonOf(std::string_view bytes) {
  MemorySource source({bytes.begin(), bytes.end()});
  const auto facts = readLibraryFacts(source);
  return facts ? "whole" : facts.error().reason;
}

// The library with a field of a header changed.
template <typename Field>
std::string with(std::string library, std::size_t offset, Field value) {
  std::memcpy(library.data() + offset, &value, sizeof(value));
  return library;
}

class LibraryFile : public testing::Test {
 protected:
  const std::string library = support::contentsOf(MODULE);
  const std::size_t firstSegment = sizeof(ElfW(Ehdr));
};

TEST_F(LibraryFile, AModuleSaysItsVersion) {
  const auto facts = readLibraryFacts(std::string(MODULE));
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->moduleVersion, VERSION);
}

TEST_F(LibraryFile, IsRefusedWhereverItIsCutOff) {
  EXPECT_EQ(reasonOf(library), "whole");
  for (const std::size_t size : support::cutsOfLibrary(library))
    EXPECT_EQ(reasonOf(library.substr(0, size)),
              size < SELFMAG ? "no shared library" : "a shared library that is cut off")
        << size;
}

TEST_F(LibraryFile, IsRefusedWhereAHeaderLies) {
  constexpr auto far = std::numeric_limits<std::uint64_t>::max();
  const std::string refused[] = {
      with(library, offsetof(ElfW(Ehdr), e_phoff), far),
      with(library, offsetof(ElfW(Ehdr), e_phoff), far - 100),
      with<std::uint16_t>(library, offsetof(ElfW(Ehdr), e_phnum), 0xFFFF),
      with(library, offsetof(ElfW(Ehdr), e_shoff), far),
      with<std::uint16_t>(library, offsetof(ElfW(Ehdr), e_shnum), 0xFFFF),
      with(library, firstSegment + offsetof(ElfW(Phdr), p_offset), far),
      with(library, firstSegment + offsetof(ElfW(Phdr), p_filesz), far),
      with<std::uint64_t>(library, firstSegment + offsetof(ElfW(Phdr), p_filesz),
                          library.size() + 1),
  };
  for (const std::string& bytes : refused)
    EXPECT_EQ(reasonOf(bytes), "a shared library that is cut off");
}

TEST_F(LibraryFile, TellsWhatIsNone) {
  EXPECT_EQ(reasonOf(""), "no shared library");
  EXPECT_EQ(reasonOf("#!/bin/sh\n"), "no shared library");
  EXPECT_EQ(reasonOf(with<std::uint16_t>(library, offsetof(ElfW(Ehdr), e_type), ET_EXEC)),
            "no shared library");
  EXPECT_EQ(reasonOf(with<std::uint16_t>(library, offsetof(ElfW(Ehdr), e_phnum), 0)),
            "no shared library");
  EXPECT_EQ(reasonOf(with<std::uint16_t>(library, offsetof(ElfW(Ehdr), e_phentsize), 32)),
            "no shared library");
  EXPECT_EQ(reasonOf(with<char>(library, EI_DATA, ELFDATANONE)),
            "a shared library for another system");
  EXPECT_EQ(reasonOf(with<char>(library, EI_CLASS, ELFCLASSNONE)),
            "a shared library for another system");
  EXPECT_EQ(readLibraryFacts("/does/not/exist").error().reason, "No such file or directory");
  EXPECT_EQ(readLibraryFacts("/dev/zero").error().reason, "not a regular file");
}

TEST_F(LibraryFile, StaysWithinDamagedBytes) {
  std::mt19937 random(4711);
  for (int round = 0; round < 2000; ++round) {
    std::string damaged = library.substr(0, 4096);
    for (int bytes = 0; bytes < 8; ++bytes) damaged[random() % 1024] = static_cast<char>(random());
    EXPECT_NE(reasonOf(damaged), "whole");
  }
}

}  // namespace
}  // namespace io
