// SPDX-License-Identifier: MIT
#include "lumifact/grid/quick_info_text.h"

#include <cmath>
#include <string_view>

#include "lumifact/report/orientation_names.h"
#include "model/conversions.h"
#include "model/number_text.h"

namespace lumifact {

namespace {

// Builds the summary line by line: labels are written in the labelled form only.
class SummaryWriter {
 public:
  SummaryWriter(std::string_view firstLine, QuickInfoForm form) : _text(firstLine), _form(form) {}

  void line(std::string_view label, std::string_view value) {
    _text.append("\n");
    if (_form == QuickInfoForm::labelled) _text.append(label).append(": ");
    _text.append(value);
  }

  std::string take() { return std::move(_text); }

 private:
  std::string _text;
  QuickInfoForm _form;
};

void writePixelSize(SummaryWriter& summary, const QuickInfo& info, QuickInfoForm form) {
  const std::string width = model::integerText(info.pixelWidth);
  const std::string height = model::integerText(info.pixelHeight);
  if (form == QuickInfoForm::compact) {
    summary.line({}, width + " x " + height);
    return;
  }
  summary.line("Width", width);
  summary.line("Height", height);
}

}  // namespace

std::string quickInfoText(const QuickInfo& info, QuickInfoForm form) {
  SummaryWriter summary(info.path, form);
  summary.line("File Date", info.dateText);
  summary.line("File Size", info.sizeText);
  writePixelSize(summary, info, form);
  if (info.isVideo) {
    summary.line("Duration", durationText(info.duration));
  } else if (const auto name = imageOrientationName(info.exifOrientation)) {
    summary.line("Orientation", *name);
  }
  if (info.place) summary.line("Location", *info.place);
  return summary.take();
}

std::string durationText(double seconds) {
  const std::int32_t whole = model::intValue(std::floor(seconds));  // 32 bits, saturating
  const std::int32_t milliseconds = model::intValue((seconds - whole) * 1000.0);
  return model::paddedIntegerText(whole / 3600, 2) + ":" +
         model::paddedIntegerText(whole / 60 % 60, 2) + ":" +
         model::paddedIntegerText(whole % 60, 2) + "." + model::paddedIntegerText(milliseconds, 3);
}

}  // namespace lumifact
