// SPDX-License-Identifier: MIT
#include "tests/rooms/room_rules.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "tests/rooms/source_tree.h"

namespace rooms {

namespace {

using Words = std::vector<std::string>;

Words wordsOf(const std::string& line) {
  std::istringstream stream(line);
  return {std::istream_iterator<std::string>(stream), {}};
}

void take(Room& room, const Words& line) {
  const Words values(line.begin() + 1, line.end());
  if (line[0] == "may-include") room.mayInclude = values;
  if (line[0] == "folders") room.order = values;
  if (line[0] == "files")
    for (const std::string& file : values) room.units.insert(room.folder + "/" + unitOf(file));
}

void placeOwnFiles(Room& room) {
  const bool isPlaced = std::ranges::find(room.order, ".") != room.order.end();
  if (!room.order.empty() && !isPlaced) room.order.push_back(".");
}

// Whether `room` knows more of a file than `other` does.
bool isCloser(const Room& room, const Room& other, const std::string& unit) {
  if (room.folder.size() != other.folder.size()) return room.folder.size() > other.folder.size();
  return room.units.contains(unit) && !other.units.contains(unit);
}

}  // namespace

std::vector<Room> parseRooms(const std::string& text) {
  std::vector<Room> rooms;
  for (const std::string& line : linesOf(text)) {
    const Words words = wordsOf(line);
    if (words.size() == 3 && words[0] == "room")
      rooms.push_back({words[1], words[2], {}, {}, {}});
    else if (!words.empty() && !rooms.empty())
      take(rooms.back(), words);
  }
  std::ranges::for_each(rooms, placeOwnFiles);
  return rooms;
}

const Room* roomOf(const std::vector<Room>& rooms, std::string_view path) {
  const std::string unit = unitOf(path);
  const Room* found = nullptr;
  for (const Room& room : rooms) {
    if (liesIn(path, room.folder) && (found == nullptr || isCloser(room, *found, unit)))
      found = &room;
  }
  return found;
}

}  // namespace rooms
