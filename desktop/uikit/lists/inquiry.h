// SPDX-License-Identifier: MIT
//
// What a list asks of others: its data source, its delegate, its layout. While they answer they may
// ask the list about itself, or change what it shows. The rule for both stands here: who asks
// meanwhile hears of the old state, a change meanwhile counts from the next time on, and a pass
// over what was learnt ends as soon as that no longer holds.
#pragma once

#include <concepts>
#include <utility>

namespace desktop::uikit {

class Inquiry {
 public:
  // A way through what was learnt, on which others are asked for more. Lives no longer than the
  // inquiry.
  class Pass {
   public:
    explicit Pass(const Inquiry& inquiry) : _inquiry(inquiry), _generation(inquiry._generation) {}
    bool holds() const { return _generation == _inquiry._generation; }

   private:
    const Inquiry& _inquiry;
    unsigned long _generation;
  };

  // What was learnt no longer holds: the next renewal asks for it anew.
  void outdate();
  // Asks, unless what was learnt still holds or the asking is under way. Whether it asked.
  template <std::invocable Ask>
  bool renew(const Ask& ask) {
    if (_isAsking || !std::exchange(_isOutdated, false)) return false;
    _isAsking = true;
    ask();
    _isAsking = false;
    return true;
  }

 private:
  bool _isOutdated = true;
  bool _isAsking = false;
  unsigned long _generation = 0;
};

}  // namespace desktop::uikit
