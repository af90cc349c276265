// SPDX-License-Identifier: MIT
#include "tests/rooms/circles.h"

namespace rooms {

namespace {

const std::set<std::string>& nextOf(const Graph& graph, const std::string& node) {
  static const std::set<std::string> none;
  const auto found = graph.find(node);
  return found == graph.end() ? none : found->second;
}

std::set<std::string> reachedFrom(const Graph& graph, const std::string& start) {
  std::set<std::string> reached;
  std::vector<std::string> waiting = {start};
  while (!waiting.empty()) {
    const std::string node = waiting.back();
    waiting.pop_back();
    for (const std::string& next : nextOf(graph, node))
      if (reached.insert(next).second) waiting.push_back(next);
  }
  return reached;
}

}  // namespace

std::vector<std::pair<std::string, std::string>> edgesInCircles(const Graph& graph) {
  std::map<std::string, std::set<std::string>> reached;
  for (const auto& [node, nexts] : graph) reached[node] = reachedFrom(graph, node);
  std::vector<std::pair<std::string, std::string>> edges;
  for (const auto& [node, nexts] : graph) {
    for (const std::string& next : nexts)
      if (next != node && reached[next].contains(node)) edges.emplace_back(node, next);
  }
  return edges;
}

}  // namespace rooms
