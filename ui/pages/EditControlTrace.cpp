#include "ui/pages/EditControlTrace.h"

#include <QDebug>

#include "ui/EditControl.h"

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

}  // namespace

void traceEditControl(const QString& name, bool isKnown, const EditControl& control) {
  QDebug line = qDebug().nospace();
  line << "getEditControlTypeByParseName" << name << ", result:" << isKnown;
  for (const Counter& counter : kCounters) line << counter.label << control.*counter.value;
}

}  // namespace brennet
