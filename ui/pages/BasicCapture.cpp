#include "ui/pages/BasicCapture.h"

#include <QDebug>
#include <QLineEdit>

#include "ui/capture/FeatureKeys.h"
#include "ui/capture/KeyMessages.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

struct Counter {
  const char* label;
  std::uint8_t EditControl::*value;
};
constexpr Counter kCounters[] = {
    {", nSkillIndex:", &EditControl::nSkillIndex},
    {", nGoodsIndex:", &EditControl::nGoodsIndex},
    {", nSkillExSrcIndex:", &EditControl::nSkillExSrcIndex},
    {", nSkillExDstIndex: \n", &EditControl::nSkillExDstIndex},
    {", nSkillGroupSrcIndex:", &EditControl::nSkillGroupSrcIndex},
    {", nSkillGroupDstIndex:", &EditControl::nSkillGroupDstIndex},
    {", nMouseWheelIndex:", &EditControl::nMouseWheelIndex},
    {", nLedgerIndex:", &EditControl::nLedgerIndex},
};

std::optional<KeySlot> slotOfName(std::u16string_view name, BasicPage kind) {
  if (const auto feature = featureKeyOf(name)) return feature;
  return slotOfField(name, kind);
}

}  // namespace

CapturePage basicCapturePage(BasicPage kind, QWidget& page) {
  return {
      .style = {.beforeName = u" "},
      .slotOf = [kind](std::u16string_view name) { return slotOfName(name, kind); },
      .trace =
          [kind](const QLineEdit& field) {
            const QString name = field.objectName();
            EditControl control;
            if (!featureKeyOf(viewOf(name))) tracedEditControl(name, kind, control);
          },
      .tellUsed = [&page](const QString& why) { tellKeyIsUsed(&page, why); },
  };
}

bool tracedEditControl(const QString& name, BasicPage kind, EditControl& control) {
  const bool isKnown = getEditControlTypeByParseName(viewOf(name), kind, control);
  QDebug line = qDebug().nospace();
  line << "getEditControlTypeByParseName" << name << ", result:" << isKnown;
  for (const Counter& counter : kCounters) line << counter.label << control.*counter.value;
  return isKnown;
}

}  // namespace brennet
