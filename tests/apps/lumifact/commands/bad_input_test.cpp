// SPDX-License-Identifier: MIT
//
// What users and strangers put in front of the tool: every bad file is named with a reason, all
// others are still printed.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>

#include "model/utf8.h"
#include "tests/apps/lumifact/sample_folder.h"
#include "tests/apps/lumifact/tool_runner.h"
#include "tests/support/opened_names.h"
#include "tests/support/sample_photo.h"

namespace lumifact::tool {
namespace {

std::string message(const std::string& path, const std::string& reason) {
  return std::string("lumifact: ").append(path).append(": ").append(reason).append("\n");
}

TEST(BadInput, EveryFailureIsNamedAndTheRestIsPrinted) {
  const SampleFolder samples;
  ASSERT_EQ(::mkfifo(samples.file("fifo").c_str(), 0600), 0);
  const auto jpeg = media::facts::sampleJpeg({});
  const std::string_view bytes(reinterpret_cast<const char*>(jpeg.data()), jpeg.size());
  const std::pair<std::string, std::string> bad[] = {
      {samples.file("missing.jpg"), "No such file or directory"},
      {samples.write("empty.jpg", ""), "empty file"},
      {samples.write("text.jpg", "no picture at all\n"), "not a photo or video"},
      {samples.path(), "Is a directory (--recursive reads what it holds)"},
      {samples.file("fifo"), "not a regular file"},
      {"/dev/zero", "not a regular file"},
      {samples.plain + "/x.jpg", "Not a directory"},
      {"", "No such file or directory"},
  };
  for (const char* command : {"report", "properties", "quick-info", "caption"}) {
    const std::string good = runTool({command, samples.plain}).output;
    for (const auto& [path, reason] : bad) {
      const ToolResult result = runTool({command, path, samples.plain});
      EXPECT_EQ(result.status, 1) << command << " " << path;
      EXPECT_EQ(result.messages, message(path, reason));
      EXPECT_EQ(result.output, good) << command << " " << path;
    }
    const ToolResult cut = runTool({command, samples.write("cut.jpg", bytes.substr(0, 20))});
    EXPECT_EQ(cut.status, 1);
    EXPECT_NE(cut.messages.find("cut.jpg: "), std::string::npos) << cut.messages;
  }
}

TEST(BadInput, AnUnreadableFileIsReported) {
  if (::geteuid() == 0) GTEST_SKIP() << "root reads every file";
  const SampleFolder samples;
  ::chmod(samples.plain.c_str(), 0);
  EXPECT_EQ(runTool({"report", samples.plain}).messages,
            "lumifact: " + samples.plain + ": Permission denied\n");
}

TEST(BadInput, NamesInMessagesStayOnTheirLine) {
  const ToolResult result = runTool({"report", "a\nlumifact: b: \x1b[31m\xff"});
  EXPECT_EQ(result.messages,
            "lumifact: a\\u000alumifact: b: \\u001b[31m\\xff: No such file or directory\n");
}

TEST(BadInput, ReadsFilesWithStrangeNames) {
  const SampleFolder samples;
  const std::vector<std::string> names{"-x.jpg",    "--help", "a\nb.jpg", "\xff\xfe.jpg",
                                       "[a,b].jpg", " ",      "++"};
  std::vector<std::string> arguments{"caption", "--"};
  for (const std::string& name : names) {
    samples.writePhoto(name);
    arguments.push_back(name);
  }
  const ToolResult result = runTool(ToolRun{.arguments = arguments, .folder = samples.path()});
  EXPECT_EQ(result.status, 0) << result.messages;
  EXPECT_EQ(linesOf(result.output), std::vector<std::string>(names.size(), "40x30, jpg"));
}

TEST(BadInput, JsonIsValidTextWhateverTheNames) {
  const SampleFolder samples;
  for (const char* name : {"in/\xff.jpg", "in/\xc3.jpg", "in/\x1b\n.jpg"}) samples.writePhoto(name);
  const ToolResult result = runTool({"report", "--json", "-r", samples.file("in")});
  EXPECT_TRUE(model::isValidUtf8(result.output));
  EXPECT_EQ(linesOf(result.output).size(), 3U);
}

TEST(BadInput, AReaderThatGoesAwayEndsTheRunQuietly) {
  const SampleFolder samples;
  for (int number = 0; number < 300; ++number) {
    samples.writePhoto("in/" + std::to_string(number) + ".jpg");
  }
  for (const char* jobs : {"1", "4"}) {
    const ToolResult result = runShell("{ $TOOL report --jobs " + std::string(jobs) + " -r " +
                                       samples.file("in") + "; echo $? >&2; } | head -1");
    EXPECT_TRUE(result.output.starts_with(samples.path())) << result.output;
    EXPECT_EQ(result.messages, "0\n");
  }
}

TEST(BadInput, ResultsThatCannotBeWrittenAreAFailure) {
  if (::access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full here";
  const SampleFolder samples;
  const ToolResult full = runShell("$TOOL report " + samples.plain + " > /dev/full");
  EXPECT_EQ(full.status, 1);
  EXPECT_EQ(full.messages, "lumifact: standard output: No space left on device\n");
  const ToolResult closed = runShell("$TOOL report " + samples.plain + " >&-");
  EXPECT_EQ(closed.status, 1);
  EXPECT_EQ(closed.messages, "lumifact: standard output: Bad file descriptor\n");
  EXPECT_EQ(runShell("$TOOL report " + samples.plain + " >/dev/null 2>&- <&-").status, 0);
}

TEST(BadInput, SixteenDescriptorsAndASmallStackAreEnough) {
  const SampleFolder samples;
  for (int number = 0; number < 40; ++number) {
    samples.writePhoto("in/" + std::to_string(number) + ".jpg");
  }
  const std::string command = "$TOOL report --jobs 4 -r " + samples.path();
  const std::string expected = runShell(command).output;
  for (const char* limit : {"ulimit -n 16; ", "ulimit -s 256; "}) {
    const ToolResult result = runShell(limit + command);
    EXPECT_EQ(result.status, 0) << limit << result.messages;
    EXPECT_EQ(result.output, expected) << limit;
  }
}

TEST(BadInput, AFileThatMayNotGrowIsAFullDisk) {
  const SampleFolder samples;
  for (int number = 0; number < 20; ++number) {
    samples.writePhoto("in/" + std::to_string(number) + ".jpg");
  }
  const std::string results = samples.file("results");
  const ToolResult result =
      runShell("ulimit -f 1; $TOOL properties -r " + samples.file("in") + " > " + results);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.messages, "lumifact: standard output: File too large\n");
  const std::string settings = samples.file("settings.plist");
  // The messages go through a pipe, as no file can take them.
  const ToolResult set = runShell("(ulimit -f 0; $TOOL settings --settings " + settings +
                                  " set fontSize 14; echo $?) 2>&1 | cat");
  EXPECT_EQ(set.output, "lumifact: " + settings + ": File too large\n1\n");
  EXPECT_FALSE(std::filesystem::exists(settings));
}

// Whoever opens a FIFO for reading lets its writer go on, and some devices act when they are
// opened.
TEST(BadInput, WhatIsNoFileIsNeverOpened) {
  const SampleFolder samples;
  samples.write("in/file.jpg", "");
  for (const char* name : {"in/a.jpg", "in/b.mov", "in/c"}) {
    ASSERT_EQ(::mkfifo(samples.file(name).c_str(), 0600), 0);
  }
  support::OpenedNames opened(samples.file("in"));
  for (const char* command : {"report", "properties", "quick-info", "caption", "size"}) {
    const ToolResult result = runTool({command, "-r", samples.file("in")});
    EXPECT_EQ(result.status, 1) << command;
    EXPECT_NE(result.messages.find("/in/c: not a regular file\n"), std::string::npos);
  }
  for (const char* name : {"a.jpg", "b.mov", "c"}) {
    EXPECT_EQ(opened.count(name), 0) << name;
    runTool({"report", samples.file(std::string("in/") + name)});
    EXPECT_EQ(opened.count(name), 0) << name;
  }
  EXPECT_GT(opened.count("file.jpg"), 0);
}

TEST(FileArguments, FoldersAreWalkedInOrder) {
  const SampleFolder samples;
  for (const char* name : {"in/b/2.jpg", "in/b/1.jpg", "in/a.jpg", "in/c.jpg", "in/.hidden.jpg"}) {
    samples.writePhoto(name);
  }
  std::filesystem::create_symlink(samples.path(), samples.file("in/up"));
  const ToolResult result = runTool({"report", "--recursive", samples.file("in")});
  std::vector<std::string> names;
  for (const std::string& line : linesOf(result.output)) {
    if (line.starts_with(samples.path())) names.push_back(line.substr(samples.path().size()));
  }
  EXPECT_EQ(names,
            (std::vector<std::string>{"/in/a.jpg", "/in/b/1.jpg", "/in/b/2.jpg", "/in/c.jpg"}));
  EXPECT_EQ(result.status, 0);
}

TEST(FileArguments, ComeFromAListToo) {
  const SampleFolder samples;
  samples.writePhoto("a\nb.jpg");
  const std::string zeros = samples.plain + '\0' + samples.file("a\nb.jpg") + '\0';
  const ToolResult byZeros =
      runTool(ToolRun{.arguments = {"caption", "--files-from", "-", "--null"}, .input = zeros});
  EXPECT_EQ(byZeros.output, "40x30, jpg\n40x30, jpg\n");
  EXPECT_EQ(byZeros.status, 0) << byZeros.messages;
  const ToolResult byLines =
      runTool(ToolRun{.arguments = {"caption", "--files-from", "-"},
                      .input = samples.plain + "\n\nnone\n" + samples.movie});
  EXPECT_EQ(byLines.output, "40x30, jpg\n1080x1920, mov\n");
  EXPECT_EQ(byLines.messages, "lumifact: none: No such file or directory\n");
  EXPECT_EQ(runTool({"caption", "--files-from", samples.file("none")}).messages,
            "lumifact: " + samples.file("none") + ": No such file or directory\n");
}

TEST(FileArguments, TheOutputKeepsItsOrderOnManyThreads) {
  const SampleFolder samples;
  for (int number = 0; number < 200; ++number) {
    const std::string name = "in/" + std::to_string(1000 + number) + ".jpg";
    if (number % 7 == 3) {
      samples.write(name, "bad");
    } else {
      samples.writePhoto(name);
    }
  }
  const ToolResult one = runTool({"report", "-r", "--jobs", "1", samples.file("in")});
  for (const char* jobs : {"2", "5", "16"}) {
    const ToolResult many = runTool({"report", "-r", "--jobs", jobs, samples.file("in")});
    EXPECT_EQ(many.output, one.output) << jobs;
    EXPECT_EQ(many.messages, one.messages) << jobs;
    EXPECT_EQ(many.status, 1) << jobs;
  }
}

TEST(FileArguments, ResultsAndMessagesStandInTheirOrder) {
  const SampleFolder samples;
  const ToolResult result =
      runShell("$TOOL caption " + samples.plain + " missing " + samples.movie + " 2>&1");
  EXPECT_EQ(result.output,
            "40x30, jpg\nlumifact: missing: No such file or directory\n1080x1920, mov\n");
}

TEST(WrongUsage, IsToldWithStatusTwo) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{}, {"frobnicate"}, {"report"}, {"report", "--frob", "x"}}) {
    const ToolResult result = runTool(arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(result.messages.starts_with("lumifact: ")) << result.messages;
    EXPECT_EQ(linesOf(result.messages).size(), 1U);
  }
}

}  // namespace
}  // namespace lumifact::tool
