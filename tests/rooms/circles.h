// SPDX-License-Identifier: MIT
//
// Circles in a graph: who can be reached from itself.
#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace rooms {

using Graph = std::map<std::string, std::set<std::string>>;

// Every edge that a circle goes through, in the order of the names. What a node says of itself does
// not count.
std::vector<std::pair<std::string, std::string>> edgesInCircles(const Graph& graph);

}  // namespace rooms
