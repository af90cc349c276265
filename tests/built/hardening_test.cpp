// SPDX-License-Identifier: MIT
//
// What cmake/hardening.cmake asks for, read back from the files that were built.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "tests/built/elf_image.h"

namespace built {
namespace {

using testing::Contains;

// A file, and what the names of its own functions begin with.
struct BuiltFile {
  std::string path;
  std::string ownNames;
};

void PrintTo(const BuiltFile& file, std::ostream* out) {
  *out << file.path;
}

bool names(const ElfImage& image, const char* pattern) {
  return std::ranges::any_of(image.symbols(), [pattern](const Symbol& symbol) {
    return testing::Matches(testing::MatchesRegex(pattern))(symbol.name);
  });
}

// Whether a function may be called from other sources: it is not local to one, nor a part or copy
// that the compiler made.
bool isSharedFunctionOf(const std::string& ownNames, const std::string& name) {
  return name.starts_with(ownNames) && name.find("_GLOBAL__N_") == std::string::npos &&
         name.find("Ul") == std::string::npos && name.find('.') == std::string::npos;
}

class Hardening : public testing::TestWithParam<BuiltFile> {
 protected:
  const ElfImage image{GetParam().path};
};

TEST_P(Hardening, IsMappedAnywhere) {
  EXPECT_EQ(image.type(), ET_DYN);
}

TEST_P(Hardening, NothingCanBeWrittenAndRun) {
  EXPECT_EQ(image.segment(PT_GNU_STACK).p_type, static_cast<ElfW(Word)>(PT_GNU_STACK));
  for (const auto& segment : image.segments())
    EXPECT_NE(segment.p_flags & (PF_W | PF_X), PF_W | PF_X) << segment.p_type;
}

TEST_P(Hardening, TablesOfAddressesAreReadOnlyFromTheStart) {
  EXPECT_GT(image.segment(PT_GNU_RELRO).p_memsz, 0U);
  EXPECT_TRUE((image.dynamic(DT_FLAGS) & DF_BIND_NOW) != 0 ||
              (image.dynamic(DT_FLAGS_1) & DF_1_NOW) != 0);
}

TEST_P(Hardening, FramesAreGuarded) {
  EXPECT_TRUE(names(image, "__stack_chk_fail"));
}

TEST_P(Hardening, TheLibraryChecksWhatItIsAsked) {
  EXPECT_TRUE(names(image, ".*__glibcxx_assert_fail.*"));
}

// What an indirect call may reach begins with an instruction that says so.
TEST_P(Hardening, FunctionsBeginWhereTheyMayBeCalled) {
#if defined(__x86_64__)
  const std::string_view landings[] = {"\xf3\x0f\x1e\xfa"};  // endbr64
#elif defined(__aarch64__)
  const std::string_view landings[] = {"\x5f\x24\x03\xd5", "\x3f\x23\x03\xd5"};  // bti c, paciasp
#else
  GTEST_SKIP() << "this processor has no such instruction";
  const std::string_view landings[] = {""};
#endif
  int functions = 0;
  for (const Symbol& symbol : image.symbols()) {
    if (!symbol.isFunction() || !isSharedFunctionOf(GetParam().ownNames, symbol.name)) continue;
    ++functions;
    EXPECT_THAT(landings, Contains(image.bytesAt(symbol.entry.st_value, 4))) << symbol.name;
  }
  EXPECT_GT(functions, 0);
}

INSTANTIATE_TEST_SUITE_P(Files, Hardening,
                         testing::Values(BuiltFile{TOOL, "_ZN8lumifact4tool"},
                                         BuiltFile{HOST, "_ZN9photohost"},
                                         BuiltFile{EXTENSION, "_ZN8lumifact"},
                                         BuiltFile{LOCALE_MODULE, "_ZN10foundation"}),
                         [](const auto& file) {
                           std::string name = std::filesystem::path(file.param.path).filename();
                           std::erase_if(name, [](unsigned char c) { return !std::isalnum(c); });
                           return name;
                         });

TEST(FortifiedCalls, KnowHowLargeTheirTargetIs) {
  for (const char* path : {TOOL, HOST})
    EXPECT_TRUE(names(ElfImage(path), "__(mem|str|sn|vsn|read|p).*_chk")) << path;
}

}  // namespace
}  // namespace built
