#include "model/SchemeTransfer.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "markup/MarkupDocument.h"
#include "model/SchemeReader.h"
#include "model/SchemeWriter.h"

namespace brennet {
namespace {

// What stands in one row of a table.
auto placeOf(SettingPart part) {
  return std::tuple(part.setting, part.index, part.isQuickCast);
}

void addRefusal(SettingPart part, TransferRow::Refusal refusal, std::vector<TransferRow>& rows) {
  const auto row = std::find_if(rows.begin(), rows.end(),
                                [&](const TransferRow& each) { return each.part == part; });
  if (row != rows.end()) {
    row->refusal = std::move(refusal);
  } else {
    rows.push_back({part, std::move(refusal)});
  }
}

}  // namespace

SchemeTransfer transferOf(const HotkeyScheme& current, const HotkeyScheme& loaded,
                          const LoadReport& report) {
  SchemeTransfer transfer{.result = loaded, .rows = {}};
  for (const SettingPart part : differencesOf(current, loaded)) {
    transfer.rows.push_back({part, {}});
  }
  for (const DroppedKey& key : report.droppedKeys) {
    addRefusal({key.slot.setting, key.slot.index}, key, transfer.rows);
  }
  for (const DroppedChoice& choice : report.droppedChoices) {
    addRefusal({choice.setting}, choice, transfer.rows);
  }
  std::stable_sort(
      transfer.rows.begin(), transfer.rows.end(),
      [](const TransferRow& a, const TransferRow& b) { return placeOf(a.part) < placeOf(b.part); });
  return transfer;
}

SchemeTransfer transferOf(const HotkeyScheme& current, const HotkeyScheme& source) {
  MarkupDocument document;
  document.addElem(u"Scheme");
  static_cast<void>(writeScheme(document, source, source));
  document.intoElem();
  document.resetMainPos();
  HotkeyScheme loaded;
  const LoadReport report = readScheme(document, loaded);
  return transferOf(current, loaded, report);
}

}  // namespace brennet
