// SPDX-License-Identifier: MIT
//
// Landlock: a process of Linux that gives up the file system and the network for good.
#pragma once

namespace workers {

// From now on this process opens no file and no connection, whatever it may call; files that are
// open stay so. False where the kernel has no landlock. REQUIRES: no new privileges.
bool leaveFileSystem();

}  // namespace workers
