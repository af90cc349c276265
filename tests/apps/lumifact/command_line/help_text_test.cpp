// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/help_text.h"

#include <gtest/gtest.h>

#include "apps/lumifact/command_line/option_store.h"

namespace lumifact::tool {
namespace {

constexpr Option loud{.letter = 'l',
                      .name = "loud",
                      .help = "say it loudly, so that everybody who is in the room hears it well",
                      .store = flag<&Options::json>};
constexpr Option place{.name = "where-exactly",
                       .values = "LAT LON",
                       .help = "where to say it\n(default: here)",
                       .store = value<&Options::location>};
constexpr const Option* sayOptions[] = {&loud, &place, &option::root};

constexpr Command say{.name = "say",
                      .summary = "say something",
                      .usage = "[OPTIONS] WORD...\n[OPTIONS] --loud",
                      .description =
                          "Says the words, one after the other, in the order in which "
                          "they were given to it.\n\nThen rests.",
                      .examples = "talk say 'a  b'",
                      .options = sayOptions,
                      .check = nullptr,
                      .run = nullptr};
constexpr Command rest{.name = "rest-for-long",
                       .summary = "say nothing",
                       .usage = "",
                       .description = "Rests.",
                       .options = {},
                       .check = nullptr,
                       .run = nullptr};
constexpr const Command* commands[] = {&say, &rest};
constexpr Tool talk{.name = "talk",
                    .version = "1",
                    .summary = "what is to be said",
                    .usage = "COMMAND [WORD...]",
                    .examples = "talk say x\ntalk rest-for-long",
                    .closing = "It is quiet otherwise.",
                    .commands = commands};

constexpr const char* generalHelp = R"(
General:
      --root FOLDER      the folder that stands for the phone's file system:
                         /var/mobile lies below it
                         (default: photohost in XDG_DATA_HOME or ~/.local/share)
  -h, --help             print this help
      --version          print the version
)";

TEST(HelpText, OfACommandIsItsRecord) {
  EXPECT_EQ(helpText(talk, say), std::string(R"(Usage: talk say [OPTIONS] WORD...
       talk say [OPTIONS] --loud

Says the words, one after the other, in the order in which they were given to
it.

Then rests.

Options:
  -l, --loud             say it loudly, so that everybody who is in the room
                         hears it well
      --where-exactly LAT LON
                         where to say it
                         (default: here)
)") + generalHelp + R"(
Example:
  talk say 'a  b'
)");
}

TEST(HelpText, OfTheToolListsItsCommandsAndTheOptionsOfSeveral) {
  EXPECT_EQ(helpText(talk), std::string(R"(talk: what is to be said

Usage: talk COMMAND [WORD...]

Commands:
  say             say something
  rest-for-long   say nothing

'talk COMMAND --help' tells more about a command.
)") + generalHelp + R"(
Examples:
  talk say x
  talk rest-for-long

It is quiet otherwise.
)");
}

}  // namespace
}  // namespace lumifact::tool
