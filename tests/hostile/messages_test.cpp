// SPDX-License-Identifier: MIT
//
// Names that command a terminal or turn the direction of writing, wherever a message prints one.
#include <gmock/gmock.h>

#include "tests/hostile/program_run.h"

namespace hostile {

namespace {

using testing::HasSubstr;
using testing::Not;

// As the shell's printf takes it: an escape sequence, a bell, a carriage return and a line's end,
// marks of direction, an invisible letter, a line separator, and a byte that is no UTF-8.
constexpr char hostileName[] =
    R"(x\033[2J\007\r\n\342\200\256\342\200\216\330\234\342\200\213\342\200\250\377)";
constexpr char shownName[] = R"(x\u001b[2J\u0007\u000d\u000a\u202e\u200e\u061c\u200b\u2028\xff)";

RunEnd runWithName(const std::string& line) {
  return runLine(std::string("N=$(printf '") + hostileName +
                 "'); F=$FILES/pairs/jpg\\ as\\ jpg.jpg; S='echo >script';" + line);
}

void expectHarmless(const std::string& messages, const std::string& line) {
  EXPECT_THAT(messages, HasSubstr(shownName)) << line;
  for (const char* raw :
       {"\x1b", "\x07", "\r", "\u202e", "\u200e", "\u061c", "\u200b", "\u2028", "\xff"})
    EXPECT_THAT(messages, Not(HasSubstr(raw))) << line;
}

TEST(Messages, OfTheToolCommandNoTerminal) {
  const char* const lines[] = {
      R"($TOOL "$N")",
      R"($TOOL report "--$N")",
      R"($TOOL report "$N")",
      R"(echo text >"$N"; $TOOL report "$N")",
      R"(mkfifo "$N"; $TOOL properties "$N")",
      R"(mkdir "$N"; $TOOL caption "$N")",
      R"(ln -s "$N" "$N"; $TOOL quick-info "$N")",
      R"(cp "$FILES/movies/some streams.mkv" "$N"; $TOOL caption "$N")",
      R"(cp "$FILES/movies/streams.ts" "$N"; $TOOL caption "$N")",
      R"($TOOL table "$N")",
      R"($TOOL size "$N")",
      R"($TOOL size --recursive "$N")",
      R"($TOOL map-link "$N")",
      R"($TOOL parse --plist "$N" image)",
      R"($TOOL report --files-from "$N")",
      R"(printf '%s\0' "$N" >list; $TOOL report --null --files-from list)",
      R"($TOOL report --locale "$N" "$F")",
      R"($TOOL caption --display "$N" "$F")",
      R"($TOOL report --jobs "$N" "$F")",
      R"($TOOL map-link --location "$N" 1)",
      R"($TOOL settings get "$N")",
      R"($TOOL settings set "$N" 1)",
      R"($TOOL settings set fontSize "$N")",
      R"(mkdir "$N"; $TOOL settings --settings "$N" set fontSize 14)",
      R"($TOOL browse "--$N")",
  };
  for (const std::string line : lines) {
    const RunEnd end = runWithName("exec 2>&1; " + line);
    EXPECT_THAT(end.output, HasSubstr("lumifact: ")) << line;
    expectHarmless(end.output, line);
  }
}

TEST(Messages, OfThePhotoApplicationCommandNoTerminal) {
  const char* const lines[] = {
      R"($HOST "--$N")",
      R"($HOST --library "$N" --script /dev/null)",
      R"(mkfifo "$N"; $HOST --library "$N" --script /dev/null)",
      R"($HOST --library . --script "$N")",
      R"(mkdir e; echo text >"e/$N.plist"; $HOST --library . --extensions e --script /dev/null)",
      R"(mkdir "$N"; echo text >"$N/a.plist"; $HOST --library . --extensions "$N" --script /dev/null)",
      R"(echo nothing >"$N"; $HOST --library . --script "$N")",
      R"(echo 'open albums "' | tr -d '"' >s; echo "open album \"${N}e\"" | tr -d '\n' >>s; $HOST --library "$N" --script s)",
  };
  for (const std::string line : lines) {
    const RunEnd end = runWithName("exec 2>&1; " + line);
    EXPECT_THAT(end.output, HasSubstr("photohost: ")) << line;
    expectHarmless(end.output, line);
  }
}

// In a window they are replacement characters, or nothing.
TEST(Messages, OnAPhotoTurnNoDirection) {
  const RunEnd end =
      runWithName(R"(mkdir p; echo text >"p/$N.jpg";)" + showing("p", "open item 0\ndump\n"));
  EXPECT_EQ(end.status, 0) << end.messages;
  EXPECT_THAT(end.output, HasSubstr("cannot be shown: "));
  for (const char* raw : {"\x1b", "\x07", "\r", "\u202e", "\u200e", "\u061c", "\u200b", "\u2028"})
    EXPECT_THAT(end.output, Not(HasSubstr(raw)));
}

}  // namespace

}  // namespace hostile
