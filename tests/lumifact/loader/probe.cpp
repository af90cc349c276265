// SPDX-License-Identifier: MIT
//
// Linked with the extension's own objects into a library of its own.
#include "tests/lumifact/loader/probe.h"

#include "lumifact/details/data_parser_class.h"
#include "lumifact/loader/hook_table.h"
#include "lumifact/state/current_settings.h"
#include "lumifact/views/lf_presenter.h"
#include "lumifact/views/lumifact_pop_up_view_controller.h"
#include "lumifact/views/lumifact_text_view.h"
#include "lumifact/views/lumifact_view_controller.h"

namespace {

std::vector<Class> ownClasses() {
  using namespace lumifact;
  return {DataParserClass::classObject(), LumifactTextView::classObject(),
          LumifactPopUpViewController::classObject(), LFPresenter::classObject(),
          LumifactViewController::classObject()};
}

// All rows of the hook table, in their order.
std::vector<bridge::HookRow> hookRows() {
  std::vector<bridge::HookRow> rows;
  for (const bridge::HookList list : lumifact::hookTable())
    rows.insert(rows.end(), list.begin(), list.end());
  return rows;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) const lumifact::host::Probe* extensionProbe();

extern "C" const lumifact::host::Probe* extensionProbe() {
  static const lumifact::host::Probe probe = {lumifact::settings, lumifact::infoLineHeight,
                                              hookRows(), &ownClasses};
  return &probe;
}
