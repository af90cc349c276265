// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/command_line.h"

#include <gtest/gtest.h>

#include "apps/lumifact/commands/commands.h"

namespace lumifact::tool {
namespace {

using Words = std::vector<std::string>;

CommandLine readCommandLine(const Words& words) {
  return readCommandLine(lumifactTool, words);
}

TEST(CommandLine, CommonOptionsStandBeforeOrBehindTheCommand) {
  for (const Words& words : {Words{"--root", "R", "--jobs", "3", "caption", "a"},
                             Words{"caption", "--root", "R", "a", "-j3"},
                             Words{"caption", "a", "--root=R", "--jobs=3"}}) {
    const CommandLine line = readCommandLine(words);
    EXPECT_EQ(line.usageError, "");
    EXPECT_EQ(line.command, &captionCommand);
    EXPECT_EQ(line.options.root, "R");
    EXPECT_EQ(line.options.jobs, 3U);
    EXPECT_EQ(line.options.words, Words{"a"});
  }
}

TEST(CommandLine, ListsMayEndInZeroBytes) {
  for (const Words& words :
       {Words{"-0", "size", "--files-from", "-"}, Words{"size", "--files-from", "-", "-0"},
        Words{"size", "--null", "--files-from=-"}}) {
    const CommandLine line = readCommandLine(words);
    EXPECT_EQ(line.usageError, "");
    EXPECT_TRUE(line.options.listsEndInZero);
    EXPECT_TRUE(line.options.words.empty());
  }
}

TEST(CommandLine, KeepsFileNamesAsTheyAre) {
  const CommandLine line = readCommandLine(
      {"report", "size", "[a,b]", "++", "a b", "", "--", "-x", "--help", "--", "[c]"});
  EXPECT_EQ(line.usageError, "");
  EXPECT_EQ(line.options.words,
            (Words{"size", "[a,b]", "++", "a b", "", "-x", "--help", "--", "[c]"}));
}

TEST(CommandLine, ReadsNegativeNumbers) {
  const CommandLine line = readCommandLine(
      {"map-link", "--map-type", "-1", "--map-zoom", "-1.5", "--location", "-33.8", "-70"});
  EXPECT_EQ(line.usageError, "");
  EXPECT_EQ(line.options.mapType, -1);
  EXPECT_EQ(line.options.mapZoomLevel, -1.5);
  EXPECT_EQ(line.options.location, (model::Location{-33.8, -70}));
  for (const char* number : {"-5", "-0.5", "-.5"}) {
    const Words words{"set", "mapZoomLevel", number};
    const CommandLine set = readCommandLine({"settings", "set", "mapZoomLevel", number});
    EXPECT_EQ(set.usageError, "");
    EXPECT_EQ(set.options.words, words);
  }
}

TEST(CommandLine, StoresEveryOption) {
  const Options report =
      readCommandLine({"report",     "a",          "--json",   "-r",         "--files-from",
                       "F",          "-0",         "--jobs",   "256",        "--settings",
                       "S",          "--map-type", "1",        "--map-zoom", "+2.5",
                       "--map-view", "3",          "--locale", "de-CH",      "--time-zone",
                       "UTC",        "--root",     "R"})
          .options;
  EXPECT_TRUE(report.json);
  EXPECT_TRUE(report.isRecursive);
  EXPECT_EQ(report.filesFrom, "F");
  EXPECT_TRUE(report.listsEndInZero);
  EXPECT_EQ(report.jobs, 256U);
  EXPECT_EQ(report.settingsFile, "S");
  EXPECT_EQ(report.mapType, 1);
  EXPECT_EQ(report.mapZoomLevel, 2.5);
  EXPECT_EQ(report.mapViewType, 3);
  EXPECT_EQ(report.locale, "de-CH");
  EXPECT_EQ(report.timeZone, "UTC");
  EXPECT_EQ(report.root, "R");
  EXPECT_TRUE(readCommandLine({"quick-info", "--compact"}).options.compact);
  EXPECT_EQ(readCommandLine({"caption", "--display", "-2"}).options.display, -2);
  EXPECT_EQ(readCommandLine({"map-link", "--coordinates", "1,2"}).options.coordinates, "1,2");
  EXPECT_EQ(readCommandLine({"parse", "--plist", "P"}).options.propertyList, "P");
  EXPECT_TRUE(readCommandLine({"settings", "--unset"}).options.unset);
}

TEST(CommandLine, TakesWhatSettingsMayBeAskedFor) {
  for (const Words& words :
       {Words{}, Words{"get", "k"}, Words{"set", "k", "v"}, Words{"set", "k", ""},
        Words{"set", "k", "--unset"}, Words{"set", "--unset", "k"}, Words{"reset"}}) {
    Words arguments{"settings"};
    arguments.insert(arguments.end(), words.begin(), words.end());
    EXPECT_EQ(readCommandLine(arguments).usageError, "");
  }
}

TEST(CommandLine, TellsWhatMakesNoSense) {
  struct Case {
    Words words;
    const char* error;
  };
  const Case cases[] = {
      {{}, "no command given"},
      {{"-r", "--jobs", "2"}, "no command given"},
      {{""}, "unknown command \"\""},
      {{"frobnicate"}, "unknown command \"frobnicate\""},
      {{"--frob"}, "unknown option \"--frob\""},
      {{"report"}, "report: no FILE given"},
      {{"report", "--frob", "x"}, "report: unknown option \"--frob\""},
      {{"report", "x", "--jobs", "0"}, "report: --jobs takes a number from 1 to 256, not \"0\""},
      {{"report", "x", "-j257"}, "report: -j takes a number from 1 to 256, not \"257\""},
      {{"report", "x", "--jobs", "many"},
       "report: --jobs takes a number from 1 to 256, not \"many\""},
      {{"report", "x", "--jobs=1", "-j2"}, "report: -j is given twice"},
      {{"report", "x", "--map-type"}, "report: --map-type takes N"},
      {{"report", "x", "--map-type", "web"}, "report: --map-type takes an integer, not \"web\""},
      {{"report", "x", "--map-type", "1.5"}, "report: --map-type takes an integer, not \"1.5\""},
      {{"report", "x", "--map-type=4294967297"}, "report: --map-type takes an integer"},
      {{"report", "x", "--map-zoom", "nan"}, "report: --map-zoom takes a number, not \"nan\""},
      {{"report", "x", "--json=yes"}, "report: --json takes no value"},
      {{"report", "x", "--null"}, "report: --null goes with --files-from"},
      {{"report", "x", "--time-zone", "Mars/Base"}, "report: unknown time zone \"Mars/Base\""},
      {{"report", "x", "--locale", ""}, "report: unknown locale \"\""},
      {{"report", "x", "--locale", "klingon"}, "report: unknown locale \"klingon\""},
      {{"report", "x", "--locale", "tlh"}, "report: unknown locale \"tlh\""},
      {{"report", "x", "--locale=../de"}, "report: unknown locale \"../de\""},
      {{"table", "a", "b"}, "table: takes one FILE"},
      {{"table", "-r", "a"}, "table: does not take -r"},
      {{"--json", "caption", "a"}, "caption: does not take --json"},
      {{"map-link"}, "map-link: takes one FILE"},
      {{"map-link", "a", "--coordinates", "1,2"}, "map-link: takes FILE or a place, not both"},
      {{"map-link", "--location", "1"}, "map-link: --location takes LAT LON"},
      {{"map-link", "--location", "1", "x"}, "map-link: --location takes numbers, not \"x\""},
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
  EXPECT_EQ(readCommandLine({"size", "--version", "--help"}).text,
            readCommandLine({"--version"}).text);
  EXPECT_NE(readCommandLine({"--help"}).text.find("Commands:"), std::string::npos);
  for (const Words& words : {Words{"size", "--help"}, Words{"--help", "size"}, Words{"size", "-h"},
                             Words{"size", "-rh"}})
    EXPECT_TRUE(readCommandLine(words).text.starts_with("Usage: lumifact size"));
}

TEST(CommandLine, PrintsHelpWhateverElseIsWrong) {
  for (const Words& words :
       {Words{"size", "--frob", "--help"}, Words{"size", "--json", "--jobs", "0", "--help"}}) {
    const CommandLine line = readCommandLine(words);
    EXPECT_TRUE(line.text.starts_with("Usage: lumifact size"));
    EXPECT_EQ(line.usageError, "");
  }
  EXPECT_EQ(readCommandLine({"frobnicate", "--help"}).text, readCommandLine({"--help"}).text);
}

}  // namespace
}  // namespace lumifact::tool
