// SPDX-License-Identifier: MIT
//
// Which elements of a collection have views: those in sight, and no others.
#include <algorithm>

#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/lists/ui_collection_view.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

using Attributes = handles::UICollectionViewLayoutAttributes;

// What supplementary views wait under; no identifier holds the mark between its parts.
std::string supplementaryKey(bridge::NSString kind, bridge::NSString identifier) {
  return kind.utf8() + '\0' + identifier.utf8();
}

bridge::Owned<bridge::UIView> makeReusable(Class aClass, bridge::NSString identifier,
                                           const std::string& key, CGRect frame) {
  const auto made = bridge::Owned<bridge::Object>::adopt(
      bridge::send<bridge::Object, "initWithFrame:">(bridge::send<id, "alloc">(aClass), frame));
  const auto view = bridge::as<handles::UICollectionReusableView>(made.get());
  if (view) UICollectionReusableView::of(view).setIdentity(identifier, key);
  return bridge::Owned<bridge::UIView>::retain(view);
}

void apply(const UICollectionViewLayoutAttributes& attributes, bridge::UIView view) {
  UIView& state = UIView::of(view);
  const CGRect frame = attributes.frame();
  if (attributes.transform() == CGAffineTransform{} && state.transform() == CGAffineTransform{}) {
    if (state.frame() != frame) view.setFrame(frame);
  } else {
    state.setTransform(attributes.transform());
    state.setBounds({state.bounds().origin, frame.size});
    state.setCenter(middle(frame));
  }
  state.setAlpha(attributes.alpha());
  state.setHidden(attributes.isHidden());
  UICollectionReusableView::of(view).setZIndex(attributes.zIndex());
}

}  // namespace

void UICollectionView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const bridge::AutoreleasePool pool;
  askAboutNewBounds();
  prepare();
  if (_backgroundView) _backgroundView->setFrame(UIView::of(self()).bounds());
  placeViews();
  _pool.settle(self());
}

// What is asked of data source and delegate on the way may change everything: the pass then ends,
// and the next one begins anew.
void UICollectionView::placeViews() {
  const auto generation = _generation;
  const auto wanted = attributesIn(UIView::of(self()).bounds());
  std::vector<Element> leaving;
  for (const auto& [element, view] : _views)
    if (!wanted.contains(element)) leaving.push_back(element);
  for (const Element& element : leaving)
    if (const auto node = _views.extract(element)) recycle(element, node.mapped());
  for (const auto& [element, attributes] : wanted) {
    if (_generation != generation) return;
    const auto shown = _views.find(element);
    if (shown == _views.end()) {
      show(element, attributes);
    } else {
      place(shown->second, attributes);
    }
  }
}

void UICollectionView::place(bridge::UIView view, Attributes attributes) {
  apply(UICollectionViewLayoutAttributes::of(attributes), view);
  handles::UICollectionReusableView(view.get()).applyLayoutAttributes(attributes);
}

void UICollectionView::show(const Element& element, Attributes attributes) {
  const bridge::AutoreleasePool pool;
  const auto generation = _generation;
  const auto view = viewFromSource(element);
  if (!view || _generation != generation) return;
  std::erase_if(_views, [&](const auto& shown) { return shown.second.get() == view.get(); });
  _views[element] = view;
  _pool.shown(view);
  animator().withoutAnimation([&] {
    place(view, attributes);
    if (element.kind.empty()) showState(element.path, view);
    if (UIView::of(view.get()).superview() != self())
      insert(view, UICollectionViewLayoutAttributes::of(attributes).zIndex());
  });
  if (element.kind.empty())
    told<"collectionView:willDisplayCell:forItemAtIndexPath:">(delegate(), self(), view,
                                                               indexPathOf(element.path));
}

void UICollectionView::showState(ItemPath path, bridge::UIView cell) const {
  const handles::UICollectionViewCell state(cell.get());
  state.setSelected(_selected.contains(path));
  state.setHighlighted(_pressed == path);
}

// Above all that lies lower, below what was added by others on top.
void UICollectionView::insert(bridge::UIView view, NSInteger zIndex) {
  const auto& siblings = UIView::of(self()).subviews();
  const auto last =
      std::ranges::find_if(siblings.rbegin(), siblings.rend(), [&](const auto& other) {
        if (other.get() == _backgroundView.get()) return true;
        return bridge::isKindOf(other, UICollectionReusableView::classObject()) &&
               UICollectionReusableView::of(other.get()).zIndex() <= zIndex;
      });
  UIView::of(self()).insertSubview(view, static_cast<std::size_t>(siblings.rend() - last));
}

// An item for which the source has no cell shows an empty one; another view just lacks.
bridge::Owned<bridge::UIView> UICollectionView::viewFromSource(const Element& element) {
  const bridge::NSIndexPath path = indexPathOf(element.path);
  if (!element.kind.empty()) {
    const auto answer =
        asked<bridge::Object, "collectionView:viewForSupplementaryElementOfKind:atIndexPath:">(
            _dataSource, self(), bridge::NSString::make(element.kind), path);
    return bridge::Owned<bridge::UIView>::retain(
        bridge::as<handles::UICollectionReusableView>(answer.value_or(bridge::Object())));
  }
  const auto answer =
      asked<bridge::Object, "collectionView:cellForItemAtIndexPath:">(_dataSource, self(), path);
  const auto cell = bridge::as<handles::UICollectionViewCell>(answer.value_or(bridge::Object()));
  if (cell) return bridge::Owned<bridge::UIView>::retain(cell);
  return makeReusable(UICollectionViewCell::classObject(), {}, {}, {});
}

void UICollectionView::recycle(const Element& element, bridge::UIView view) {
  const bridge::AutoreleasePool pool;
  const auto kept = bridge::Owned<bridge::UIView>::retain(view);
  _pool.put(UICollectionReusableView::of(view).poolKey(), kept);
  if (element.kind.empty())
    told<"collectionView:didEndDisplayingCell:forItemAtIndexPath:">(delegate(), self(), view,
                                                                    indexPathOf(element.path));
}

void UICollectionView::recycleAll() {
  const auto views = std::exchange(_views, {});
  for (const auto& [element, view] : views) recycle(element, view);
}

void UICollectionView::registerCellClass(Class aClass, bridge::NSString identifier) {
  _pool.registerClass(identifier.utf8(), aClass);
}

void UICollectionView::registerSupplementaryClass(Class aClass, bridge::NSString kind,
                                                  bridge::NSString identifier) {
  _pool.registerClass(supplementaryKey(kind, identifier), aClass);
}

// A new cell is made where it will stand: there are classes that arrange themselves only once.
bridge::UIView UICollectionView::dequeueCell(bridge::NSString identifier,
                                             bridge::NSIndexPath path) {
  return dequeue(identifier.utf8(), identifier, UICollectionViewCell::classObject(),
                 attributesForItem(path).frame());
}

bridge::UIView UICollectionView::dequeueSupplementary(bridge::NSString kind,
                                                      bridge::NSString identifier,
                                                      bridge::NSIndexPath path) {
  return dequeue(supplementaryKey(kind, identifier), identifier,
                 UICollectionReusableView::classObject(),
                 attributesForSupplementary(kind, path).frame());
}

// Where no class is registered, what comes is of the class that all of them are below.
bridge::UIView UICollectionView::dequeue(const std::string& key, bridge::NSString identifier,
                                         Class fallback, CGRect frame) {
  return _pool.dequeue(key, [&](Class registered) {
    return makeReusable(registered ? registered : fallback, identifier, key, frame);
  });
}

handles::UICollectionViewCell UICollectionView::cellForItem(bridge::NSIndexPath path) const {
  const auto at = itemPathOf(path);
  const auto found = at ? _views.find({{}, *at}) : _views.end();
  return handles::UICollectionViewCell(found == _views.end() ? nullptr : found->second.get().get());
}

bridge::NSIndexPath UICollectionView::indexPathForCell(bridge::UIView cell) const {
  const auto found =
      std::ranges::find_if(_views, [&](const auto& shown) { return shown.second.get() == cell; });
  if (found == _views.end() || !found->first.kind.empty()) return {};
  return indexPathOf(found->first.path);
}

bridge::NSArray UICollectionView::visibleCells() const {
  return visibleViews({});
}

bridge::NSArray UICollectionView::visibleSupplementaryViews(bridge::NSString kind) const {
  return kind.length() > 0 ? visibleViews(kind.utf8()) : bridge::NSArray::of();
}

bridge::NSArray UICollectionView::visibleViews(const std::string& kind) const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& [element, view] : _views)
    if (element.kind == kind) all->add(view.get());
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

bridge::NSArray UICollectionView::visibleItems() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& [element, view] : _views)
    if (element.kind.empty()) all->add(indexPathOf(element.path));
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

bridge::UIView UICollectionView::supplementaryView(bridge::NSString kind,
                                                   bridge::NSIndexPath path) const {
  const auto at = itemPathOf(path);
  const auto found = at && kind.length() > 0 ? _views.find({kind.utf8(), *at}) : _views.end();
  return found == _views.end() ? bridge::UIView() : found->second.get();
}

}  // namespace desktop::uikit
