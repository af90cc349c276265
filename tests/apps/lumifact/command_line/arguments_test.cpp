// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/arguments.h"

#include <gtest/gtest.h>

#include "apps/lumifact/commands/commands.h"

namespace lumifact::tool {
namespace {

using Words = std::vector<std::string>;

// What was read, each option as it was written with its values behind it.
struct Told {
  std::vector<Words> options;
  Words words;
  std::string error;

  bool operator==(const Told&) const = default;
};

void PrintTo(const Told& told, std::ostream* stream) {
  *stream << testing::PrintToString(told.options) << " " << testing::PrintToString(told.words)
          << " " << told.error;
}

Told told(const Words& arguments) {
  const Arguments read = readArguments(lumifactTool, arguments);
  Told result{.options = {}, .words = read.words, .error = read.error ? read.error->reason : ""};
  for (const Given& given : read.options) {
    result.options.push_back({given.written});
    result.options.back().insert(result.options.back().end(), given.values.begin(),
                                 given.values.end());
  }
  return result;
}

struct Case {
  Words arguments;
  Told told;
};

TEST(Arguments, AreOptionsWithTheirValuesOrWords) {
  const Case cases[] = {
      {{}, {{}, {}, ""}},
      {{"a", "--json", "b"}, {{{"--json"}}, {"a", "b"}, ""}},
      {{"--jobs", "4"}, {{{"--jobs", "4"}}, {}, ""}},
      {{"--jobs=4"}, {{{"--jobs", "4"}}, {}, ""}},
      {{"--root="}, {{{"--root", ""}}, {}, ""}},
      {{"--root=a=b"}, {{{"--root", "a=b"}}, {}, ""}},
      {{"-j", "4"}, {{{"-j", "4"}}, {}, ""}},
      {{"-j4"}, {{{"-j", "4"}}, {}, ""}},
      {{"-r0"}, {{{"-r"}, {"-0"}}, {}, ""}},
      {{"-0r"}, {{{"-0"}, {"-r"}}, {}, ""}},
      {{"-r0j4"}, {{{"-r"}, {"-0"}, {"-j", "4"}}, {}, ""}},
      {{"-0j", "4"}, {{{"-0"}, {"-j", "4"}}, {}, ""}},
      {{"--location", "51.4779", "-0.0015"}, {{{"--location", "51.4779", "-0.0015"}}, {}, ""}},
      {{"--location", "-0", "-0"}, {{{"--location", "-0", "-0"}}, {}, ""}},
      {{"--location=1", "2", "3"}, {{{"--location", "1", "2"}}, {"3"}, ""}},
      {{"--map-zoom", "-0.5", "a"}, {{{"--map-zoom", "-0.5"}}, {"a"}, ""}},
      {{"--coordinates", "-1,2"}, {{{"--coordinates", "-1,2"}}, {}, ""}},
      {{"--files-from", "-", "-"}, {{{"--files-from", "-"}}, {"-"}, ""}},
      {{"--root", "--", "--", "-r"}, {{{"--root", "--"}}, {"-r"}, ""}},
  };
  for (const Case& item : cases)
    EXPECT_EQ(told(item.arguments), item.told) << testing::PrintToString(item.arguments);
}

TEST(Arguments, AreWordsWhereTheyOnlyLookLikeMore) {
  for (const char* word : {"[a,b]", "[]", "++", "+5", "-", "", " ", "a=b", "-5", "-0.5", "-.5",
                           "-05", "-5x.jpg", "\x01", "%%", "@file"})
    EXPECT_EQ(told({word}), (Told{{}, {word}, ""})) << word;
}

TEST(Arguments, AreAllWordsBehindTwoDashes) {
  EXPECT_EQ(told({"-r", "--", "-r", "--help", "--jobs", "--", "[c]", "-0"}),
            (Told{{{"-r"}}, {"-r", "--help", "--jobs", "--", "[c]", "-0"}, ""}));
}

TEST(Arguments, TellTheFirstThatDoesNotRead) {
  const Case cases[] = {
      {{"--frob"}, {{}, {}, "unknown option \"--frob\""}},
      {{"--frob=1", "--bar"}, {{}, {}, "unknown option \"--frob=1\""}},
      {{"--rec"}, {{}, {}, "unknown option \"--rec\""}},
      {{"--=x"}, {{}, {}, "unknown option \"--=x\""}},
      {{"-x"}, {{}, {}, "unknown option \"-x\""}},
      {{"-rx"}, {{{"-r"}}, {}, "unknown option \"-rx\""}},
      {{"-\xc3\xa4"}, {{}, {}, "unknown option \"-\xc3\xa4\""}},
      {{"--json=true"}, {{}, {}, "--json takes no value"}},
      {{"--jobs"}, {{}, {}, "--jobs takes N"}},
      {{"-rj"}, {{{"-r"}}, {}, "-j takes N"}},
      {{"--location", "1"}, {{}, {}, "--location takes LAT LON"}},
      {{"--frob", "a", "--help"}, {{{"--help"}}, {"a"}, "unknown option \"--frob\""}},
  };
  for (const Case& item : cases)
    EXPECT_EQ(told(item.arguments), item.told) << testing::PrintToString(item.arguments);
}

}  // namespace
}  // namespace lumifact::tool
