// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/command_line.h"

#include <gtest/gtest.h>

#include "apps/lumifact/commands/commands.h"

namespace lumifact::tool {
namespace {

using Words = std::vector<std::string>;

TEST(CommandLine, CommonOptionsStandBeforeOrBehindTheCommand) {
  for (const Words& words : {Words{"--root", "R", "--jobs", "3", "caption", "a"},
                             Words{"caption", "--root", "R", "a", "-j3"},
                             Words{"caption", "a", "--root=R", "--jobs=3"}}) {
    const CommandLine line = readCommandLine(words);
    EXPECT_EQ(line.usageError, "");
    EXPECT_EQ(line.run, runCaption);
    EXPECT_EQ(line.options.root, "R");
    EXPECT_EQ(line.options.jobs, 3U);
    EXPECT_EQ(line.options.files, Words{"a"});
  }
}

TEST(CommandLine, ListsMayEndInZeroBytes) {
  for (const Words& words :
       {Words{"-0", "size", "--files-from", "-"}, Words{"size", "--files-from", "-", "-0"},
        Words{"size", "--null", "--files-from=-"}}) {
    const CommandLine line = readCommandLine(words);
    EXPECT_EQ(line.usageError, "");
    EXPECT_TRUE(line.options.listsEndInZero);
    EXPECT_TRUE(line.options.files.empty());
  }
}

TEST(CommandLine, KeepsFileNamesAsTheyAre) {
  const CommandLine line = readCommandLine(
      {"report", "size", "[a,b]", "++", "a b", "", "--", "-x", "--help", "--", "[c]"});
  EXPECT_EQ(line.usageError, "");
  EXPECT_EQ(line.options.files,
            (Words{"size", "[a,b]", "++", "a b", "", "-x", "--help", "--", "[c]"}));
}

TEST(CommandLine, ReadsNegativeNumbers) {
  const CommandLine line = readCommandLine(
      {"map-link", "--map-type", "-1", "--map-zoom", "-1.5", "--location", "-33.8", "-70"});
  EXPECT_EQ(line.usageError, "");
  EXPECT_EQ(line.options.mapType, -1);
  EXPECT_EQ(line.options.mapZoomLevel, -1.5);
  EXPECT_EQ(line.options.location, (model::Location{-33.8, -70}));
  EXPECT_EQ(readCommandLine({"settings", "set", "fontSize", "-5"}).options.value, "-5");
}

TEST(CommandLine, ReadsWhatSettingsAreAskedFor) {
  struct Case {
    Words words;
    SettingsAction action;
    std::string key;
    std::string value;
  };
  const Case cases[] = {
      {{"settings"}, SettingsAction::list, "", ""},
      {{"settings", "get", "k"}, SettingsAction::get, "k", ""},
      {{"settings", "set", "k", "v"}, SettingsAction::set, "k", "v"},
      {{"settings", "set", "k", ""}, SettingsAction::set, "k", ""},
      {{"settings", "set", "k", "--unset"}, SettingsAction::unset, "k", ""},
      {{"settings", "set", "--unset", "k"}, SettingsAction::unset, "k", ""},
      {{"settings", "reset"}, SettingsAction::reset, "", ""},
  };
  for (const Case& item : cases) {
    const CommandLine line = readCommandLine(item.words);
    EXPECT_EQ(line.usageError, "");
    EXPECT_EQ(line.options.action, item.action);
    EXPECT_EQ(line.options.key, item.key);
    EXPECT_EQ(line.options.value, item.value);
  }
}

TEST(CommandLine, TellsWhatMakesNoSense) {
  struct Case {
    Words words;
    const char* error;
  };
  const Case cases[] = {
      {{}, "no command given"},
      {{"frobnicate"}, "unknown command \"frobnicate\""},
      {{"--frob"}, "unknown option \"--frob\""},
      {{"report"}, "report: no FILE given"},
      {{"report", "--frob", "x"}, "report: unknown option \"--frob\""},
      {{"report", "x", "--jobs", "0"}, "report: --jobs"},
      {{"report", "x", "--jobs", "many"}, "report: --jobs: Value many not in range"},
      {{"report", "x", "--map-type"}, "report: --map-type"},
      {{"report", "x", "--map-type", "web"}, "report: Could not convert: --map-type = web"},
      {{"report", "x", "--null"}, "report: --null goes with --files-from"},
      {{"report", "x", "--time-zone", "Mars/Base"}, "report: unknown time zone \"Mars/Base\""},
      {{"table", "a", "b"}, "table: takes one FILE"},
      {{"table", "-r", "a"}, "table: takes one FILE"},
      {{"map-link"}, "map-link: takes one FILE"},
      {{"map-link", "a", "--coordinates", "1,2"}, "map-link: takes FILE or a place, not both"},
      {{"map-link", "--location", "1"}, "map-link: --location"},
      {{"parse"}, "parse: takes image or video"},
      {{"parse", "sound"}, "parse: takes image or video"},
      {{"settings", "get"}, "settings: takes get KEY"},
      {{"settings", "set", "k"}, "settings: set takes KEY and VALUE"},
      {{"settings", "set", "k", "v", "--unset"}, "settings: --unset goes with set KEY"},
      {{"settings", "reset", "k"}, "settings: takes get KEY"},
  };
  for (const Case& item : cases) {
    const CommandLine line = readCommandLine(item.words);
    EXPECT_TRUE(line.usageError.starts_with(item.error)) << line.usageError;
    EXPECT_NE(line.usageError.find("--help)"), std::string::npos) << line.usageError;
  }
}

TEST(CommandLine, PrintsHelpAndVersion) {
  EXPECT_TRUE(readCommandLine({"--version"}).text.starts_with("lumifact "));
  EXPECT_NE(readCommandLine({"--help"}).text.find("Commands:"), std::string::npos);
  for (const Words& words :
       {Words{"size", "--help"}, Words{"--help", "size"}, Words{"size", "-h"}}) {
    EXPECT_TRUE(readCommandLine(words).text.starts_with("Usage: lumifact size"));
  }
}

}  // namespace
}  // namespace lumifact::tool
