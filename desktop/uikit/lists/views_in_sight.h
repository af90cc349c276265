// SPDX-License-Identifier: MIT
//
// What a list shows at present: a view for each key (a row, an item, a title) in sight, and no
// others.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "desktop/uikit/lists/inquiry.h"

namespace desktop::uikit {

template <typename Key, typename View>
class ViewsInSight {
 public:
  using Views = std::map<Key, View>;

  const Views& all() const { return _views; }
  // An empty view where the key is out of sight.
  View find(const Key& key) const {
    const auto found = _views.find(key);
    return found == _views.end() ? View() : found->second;
  }
  template <typename Other>
  std::optional<Key> keyOf(const Other& view) const {
    const auto found = std::ranges::find_if(_views, shows(view));
    return found == _views.end() ? std::nullopt : std::optional(found->first);
  }

  // A view shows one thing at a time: the latest.
  void show(const Key& key, const View& view) {
    std::erase_if(_views, shows(view));
    _views[key] = view;
  }
  Views takeAll() { return std::exchange(_views, {}); }

  // Brings what is shown into line with what is wanted: what is no longer wanted leaves, then what
  // is there already is placed anew and what is not comes, in order. What is asked of others on the
  // way may change everything: the pass then ends, and the next one begins anew.
  template <typename Place, typename Leave, typename Stay, typename Come>
  void follow(const std::map<Key, Place>& wanted, Inquiry::Pass pass, const Leave& leave,
              const Stay& stay, const Come& come) {
    for (const Key& key : without(wanted))
      if (const auto node = _views.extract(key)) leave(key, node.mapped());
    for (const auto& [key, place] : wanted) {
      if (!pass.holds()) return;
      const auto shown = _views.find(key);
      if (shown == _views.end()) {
        come(key, place);
      } else {
        stay(shown->second, place);
      }
    }
  }

 private:
  template <typename Other>
  static auto shows(const Other& view) {
    return [&view](const auto& shown) { return shown.second == view; };
  }

  template <typename Place>
  std::vector<Key> without(const std::map<Key, Place>& wanted) const {
    std::vector<Key> keys;
    for (const auto& [key, view] : _views)
      if (!wanted.contains(key)) keys.push_back(key);
    return keys;
  }

  Views _views;
};

}  // namespace desktop::uikit
