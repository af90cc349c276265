// SPDX-License-Identifier: MIT
//
// UITableViewCell: a row of a table, with one or two labels, a picture and an accessory. The table
// places it; what is on it is laid out in its content view.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_lists.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/lists/table/row_separators.h"
#include "desktop/uikit/lists/table/table_cell_layout.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class Canvas;

class UITableViewCellState : public Bound<UITableViewCellState, UIViewState, UITableViewCell> {
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
  static Owned<UITableViewCell> make(Class aClass, NSString identifier);

  NSInteger style() const { return _style; }
  // Nil where the cell is never used again.
  NSString reuseIdentifier() const { return _reuseIdentifier; }
  UIView contentView() const { return _contentView; }
  // Labels and picture are made when they are first asked for.
  UILabel textLabel();
  UILabel detailTextLabel();  // nil where the style has none
  UIView imageView();
  // What the labels say; nil without a label. Asking makes none.
  NSString text() const { return _textLabel->text(); }
  NSString detailText() const { return _detailTextLabel->text(); }

  NSInteger accessoryType() const { return _accessoryType; }
  void setAccessoryType(NSInteger type);
  UIView accessoryView() const { return _accessoryView; }
  void setAccessoryView(UIView view);
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
  UITableViewCell initWithStyle(NSInteger style, NSString reuseIdentifier);
  UIView initWithFrame(CGRect frame);
  void setSelectedAtOnce(bool selected);
  void setSelected(bool selected, bool animated);
  void setHighlightedAtOnce(bool highlighted);
  void setHighlighted(bool highlighted, bool animated);
  void prepareForReuse();
  void layoutSubviews();

  CGFloat accessoryRoom() const;
  CGFloat imageRoom() const;
  void drawSeparators(Canvas& canvas, CGRect bounds) const;
  Owned<UILabel> makeLabel(CGFloat fontSize, Color color) const;

  NSInteger _style = plain;
  Owned<NSString> _reuseIdentifier;
  Owned<UIView> _contentView;
  Owned<UILabel> _textLabel;
  Owned<UILabel> _detailTextLabel;
  Owned<UIImageView> _imageView;
  Owned<UIView> _accessoryView;
  NSInteger _accessoryType = noAccessory;
  NSInteger _selectionStyle = standard;
  bool _isSelected = false;
  bool _isHighlighted = false;
  RowSeparators _separators;
};

}  // namespace desktop::uikit
