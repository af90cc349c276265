// SPDX-License-Identifier: MIT
//
// What is on screen besides the grid of an album; told by the hooks of visibility_hooks.cpp alone.
#pragma once

namespace lumifact {

bool isAlbumListVisible();
bool isPanoramaVisible();

}  // namespace lumifact
