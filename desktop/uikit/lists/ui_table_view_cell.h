// SPDX-License-Identifier: MIT
//
// UITableViewCell: a row of a table, with one or two labels, a picture and an accessory. The table
// places it; what is on it is laid out in its content view.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_lists.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/lists/table/row_separators.h"
#include "desktop/uikit/lists/table/table_cell_layout.h"

namespace desktop::uikit {

class Canvas;

class UITableViewCell : public bridge::Bound<UITableViewCell, bridge::UIView> {
 public:
  using Style = CellParts::Style;
  using enum CellParts::Style;
  enum Accessory : NSInteger {
    noAccessory = 0,
    disclosureIndicator = 1,
    detailDisclosureButton = 2,
    checkmark = 3,
    detailButton = 4
  };
  enum Selection : NSInteger { noSelection = 0, blue = 1, gray = 2, standard = 3 };

  using Bound::Bound;
  static Class classObject();

  // A new one of a class below this.
  static bridge::Owned<bridge::UITableViewCell> make(Class aClass, bridge::NSString identifier);

  NSInteger style() const { return _style; }
  // Nil where the cell is never used again.
  bridge::NSString reuseIdentifier() const { return _reuseIdentifier; }
  bridge::UIView contentView() const { return _contentView; }
  // Labels and picture are made when they are first asked for.
  bridge::UILabel textLabel();
  bridge::UILabel detailTextLabel();  // nil where the style has none
  bridge::UIView imageView();
  // What the labels say; nil without a label. Asking makes none.
  bridge::NSString text() const { return _textLabel->text(); }
  bridge::NSString detailText() const { return _detailTextLabel->text(); }

  NSInteger accessoryType() const { return _accessoryType; }
  void setAccessoryType(NSInteger type);
  bridge::UIView accessoryView() const { return _accessoryView; }
  void setAccessoryView(bridge::UIView view);
  NSInteger selectionStyle() const { return _selectionStyle; }
  void setSelectionStyle(NSInteger style);
  bool isSelected() const { return _isSelected; }
  bool isHighlighted() const { return _isHighlighted; }
  // Whether the row is shown as touched or selected.
  bool looksSelected() const {
    return (_isSelected || _isHighlighted) && _selectionStyle != noSelection;
  }

  const RowSeparators& separators() const { return _separators; }
  void setSeparators(const RowSeparators& separators);

  void drawContent(Canvas* canvas) const;

 private:
  bridge::UITableViewCell initWithStyle(NSInteger style, bridge::NSString reuseIdentifier);
  bridge::UIView initWithFrame(CGRect frame);
  void setSelectedAtOnce(bool selected);
  void setSelected(bool selected, bool animated);
  void setHighlightedAtOnce(bool highlighted);
  void setHighlighted(bool highlighted, bool animated);
  void prepareForReuse();
  void layoutSubviews();

  CGFloat accessoryRoom() const;
  CGFloat imageRoom() const;
  void drawSeparators(Canvas& canvas, CGRect bounds) const;
  bridge::Owned<bridge::UILabel> makeLabel(CGFloat fontSize, Color color) const;

  NSInteger _style = plain;
  bridge::Owned<bridge::NSString> _reuseIdentifier;
  bridge::Owned<bridge::UIView> _contentView;
  bridge::Owned<bridge::UILabel> _textLabel;
  bridge::Owned<bridge::UILabel> _detailTextLabel;
  bridge::Owned<handles::UIImageView> _imageView;
  bridge::Owned<bridge::UIView> _accessoryView;
  NSInteger _accessoryType = noAccessory;
  NSInteger _selectionStyle = standard;
  bool _isSelected = false;
  bool _isHighlighted = false;
  RowSeparators _separators;
};

}  // namespace desktop::uikit
