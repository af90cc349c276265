// SPDX-License-Identifier: MIT
//
// What the rooms' lines in the build say of them (room_rule in cmake/rooms.cmake).
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace rooms {

struct Room {
  std::string name;  // of the library
  std::string folder;
  std::vector<std::string> mayInclude;  // folders with all that lies in them, or single files
  std::vector<std::string> order;       // its folders, the lowest first; "." are its own files
  std::set<std::string> units;          // what its line lists
};

// A room a run of lines: "room NAME FOLDER", then "may-include ...", "folders ..." and "files ...",
// each with any number of words. The room's own files stand above folders whose order does not
// place them. Folders without an order may include each other.
std::vector<Room> parseRooms(const std::string& text);

// The room of a file: the one with the innermost folder around it. Of several libraries in one
// folder, that which lists the file (or the source of its name), else the first. Null where none
// is.
const Room* roomOf(const std::vector<Room>& rooms, std::string_view path);

}  // namespace rooms
