// SPDX-License-Identifier: MIT
//
// The tool and its commands, which have a source file each. A new command is added to the list in
// commands.cpp.
#pragma once

#include "apps/lumifact/command_line/command.h"

namespace lumifact::tool {

extern const Command reportCommand;
extern const Command tableCommand;
extern const Command quickInfoCommand;
extern const Command captionCommand;
extern const Command sizeCommand;
extern const Command mapLinkCommand;
extern const Command propertiesCommand;
extern const Command parseCommand;
extern const Command browseCommand;
extern const Command settingsCommand;

extern const Tool lumifactTool;

}  // namespace lumifact::tool
