// SPDX-License-Identifier: MIT
#include "apps/lumifact/commands/commands.h"

namespace lumifact::tool {

namespace {

// In the order of the help.
constexpr const Command* commands[] = {
    &reportCommand,  &tableCommand,      &quickInfoCommand, &captionCommand, &sizeCommand,
    &mapLinkCommand, &propertiesCommand, &parseCommand,     &browseCommand,  &settingsCommand};

}  // namespace

constinit const Tool lumifactTool{
    .name = "lumifact",
    .version = LUMIFACT_VERSION,
    .summary = "everything that photos and videos say about themselves",
    .usage = "COMMAND [OPTIONS] [FILE...]",
    .examples =
        "lumifact report IMG_0001.HEIC\n"
        "lumifact report --recursive ~/Pictures > report.txt\n"
        "lumifact report --json *.jpg | jq -r .mapLink\n"
        "find . -name '*.mov' -print0 | lumifact caption --files-from - --null",
    .closing =
        "Results go to standard output, messages to standard error as 'lumifact: FILE: "
        "reason'. Exit status: 0 all done, 1 some file failed (the others are still "
        "printed), 2 wrong usage. Behind '--', everything is a file name.",
    .commands = commands};

}  // namespace lumifact::tool
