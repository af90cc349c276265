// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/reuse_pool.h"

#include <algorithm>

#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

void ReusePool::registerClass(const std::string& identifier, Class aClass) {
  _classes[identifier] = aClass;
}

void ReusePool::put(const std::string& identifier, const Owned<UIView>& view) {
  _unsettled.push_back(view);
  if (!identifier.empty()) _waiting[identifier].push_back(view);
}

Owned<UIView> ReusePool::take(const std::string& identifier) {
  const auto found = _waiting.find(identifier);
  if (found == _waiting.end() || found->second.empty()) return {};
  auto view = std::move(found->second.back());
  found->second.pop_back();
  return view;
}

UIView ReusePool::dequeue(const std::string& identifier, const Make& make) {
  if (auto waiting = take(identifier)) {
    prepareForReuse(waiting);
    return waiting.autorelease();
  }
  const auto registered = _classes.find(identifier);
  return make(registered == _classes.end() ? nullptr : registered->second).autorelease();
}

void ReusePool::shown(UIView view) {
  std::erase_if(_unsettled, [&](const auto& other) { return other.get() == view; });
}

void ReusePool::settle(UIView list) {
  const auto leaving = std::exchange(_unsettled, {});
  for (const auto& view : leaving)
    if (UIViewState::of(view.get()).superview() == list) view->removeFromSuperview();
}

}  // namespace desktop::uikit
