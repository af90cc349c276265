// SPDX-License-Identifier: MIT
//
// Which items of a collection are selected: none, one or many. They stay selected where others
// before them come or go.
#pragma once

#include <concepts>
#include <functional>
#include <set>

#include "desktop/uikit/lists/index_path.h"

namespace desktop::uikit {

class ItemSelection {
 public:
  // Called with each item that becomes selected or ceases to be.
  using Show = std::function<void(ItemPath path, bool isSelected)>;
  explicit ItemSelection(Show show) : _show(std::move(show)) {}

  const std::set<ItemPath>& paths() const { return _paths; }
  bool contains(ItemPath path) const { return _paths.contains(path); }

  bool isAllowed() const { return _isAllowed; }
  void allow(bool allows);
  bool isMultipleAllowed() const { return _isMultipleAllowed; }
  void allowMultiple(bool allows);

  void set(ItemPath path, bool isSelected);
  void deselectAll();
  // A finger selects an item, or deselects it where it is one of many. The delegate may forbid it
  // and is told; `has` says whether the item is still there after it was asked. One that was
  // selected alone is selected again.
  template <typename Delegate, std::predicate<ItemPath> Has>
  void tap(ItemPath path, const Delegate& delegate, const Has& has) {
    if (_isMultipleAllowed && contains(path)) return deselect(path, delegate);
    if (!delegate.shouldSelect(path) || !has(path)) return;
    if (!_isMultipleAllowed) {
      const auto before = _paths;
      for (const ItemPath other : before)
        if (other != path) deselect(other, delegate);
    }
    set(path, true);
    delegate.didSelect(path);
  }

  // What is gone is not shown any longer: these change only what is known.
  void forgetAll() { _paths.clear(); }
  template <std::predicate<ItemPath> Has>
  void keepOnly(const Has& has) {
    std::erase_if(_paths, [&has](ItemPath path) { return !has(path); });
  }
  // Items came to these paths, or went from them.
  void moveForInserted(const std::set<ItemPath>& inserted);
  void moveForDeleted(const std::set<ItemPath>& deleted);

 private:
  template <typename Delegate>
  void deselect(ItemPath path, const Delegate& delegate) {
    if (!delegate.shouldDeselect(path)) return;
    set(path, false);
    delegate.didDeselect(path);
  }

  Show _show;
  std::set<ItemPath> _paths;
  bool _isAllowed = true;
  bool _isMultipleAllowed = false;
};

}  // namespace desktop::uikit
