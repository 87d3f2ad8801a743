#include "BlockFields.h"

#include <QStringList>

#include "KeyText.h"

namespace {

using brennet::HotkeyBlock;

QString number(const QByteArray& bytes) {
  std::uint32_t value = 0;
  for (int i = bytes.size(); i-- > 0;) value = value << 8U | static_cast<unsigned char>(bytes[i]);
  return QString::number(value);
}

std::uint16_t keyAt(const QByteArray& bytes, int at) {
  return static_cast<std::uint16_t>(static_cast<unsigned char>(bytes[at]) |
                                    static_cast<unsigned char>(bytes[at + 1]) << 8U);
}

QString key(const QByteArray& bytes) {
  return keyText(keyAt(bytes, 0));
}

QString remap(const QByteArray& bytes) {
  if (keyAt(bytes, 0) == 0) return QStringLiteral("-");
  return keyText(keyAt(bytes, 2)) + QStringLiteral(" sends ") + keyText(keyAt(bytes, 0));
}

QString yesNo(const QByteArray& bytes) {
  return bytes[0] != 0 ? QStringLiteral("on") : QStringLiteral("off");
}

struct Flag {
  unsigned bit;
  const char* name;
};

#define FLAG_ROW(bit, name) {bit, #name},
constexpr Flag kFlags[] = {BRENNET_BLOCK_FLAGS(FLAG_ROW){31, "enabled"}};
#undef FLAG_ROW

QString flags(const QByteArray& bytes) {
  const std::uint32_t word = keyAt(bytes, 0) | std::uint32_t{keyAt(bytes, 2)} << 16U;
  QStringList set;
  for (const Flag& flag : kFlags) {
    if ((word >> flag.bit & 1U) != 0) set += QLatin1String(flag.name);
  }
  return set.isEmpty() ? QStringLiteral("none") : set.join(QStringLiteral(", "));
}

QString quickChatKeys(const QByteArray& bytes) {
  return keyAt(bytes, 0) == 0 ? QStringLiteral("Alt+1 to Alt+8")
                              : QStringLiteral("Alt+F1 to Alt+F8");
}

QString phrases(const QByteArray& bytes) {
  return phrasesIn(bytes).join(QStringLiteral(" | "));
}

QString unused(const QByteArray&) {
  return QStringLiteral("unused");
}

// `count` fields of `size` bytes each, side by side. If there are several, they are numbered from
// `first`.
struct FieldRow {
  std::size_t offset;
  int size;
  const char* name;
  QString (*meaning)(const QByteArray&);
  int count = 1;
  int first = 0;
};

constexpr FieldRow kFields[] = {
    {offsetof(HotkeyBlock, size), 4, "size", number},
    {offsetof(HotkeyBlock, flags), 4, "flags", flags},
    {offsetof(HotkeyBlock, heroSkillKeys0to5), 2, "hero skill", key, 6},
    {offsetof(HotkeyBlock, itemKeys), 2, "item", key, 6},
    {offsetof(HotkeyBlock, showFBlood), 2, "ShowFBlood", key},
    {offsetof(HotkeyBlock, showEBlood), 2, "ShowEBlood", key},
    {offsetof(HotkeyBlock, quickChatIndex), 2, "QuickChatIndex", quickChatKeys},
    {offsetof(HotkeyBlock, ledgerKey1), 2, "Ledger key 1", key},
    {offsetof(HotkeyBlock, keyRemaps), 4, "remap", remap, 6},
    {offsetof(HotkeyBlock, heroSkillKey6), 2, "hero skill 6", key},
    {offsetof(HotkeyBlock, ledgerKey2), 2, "Ledger key 2", key},
    {offsetof(HotkeyBlock, zoomValue), 1, "ZoomValue", number},
    {offsetof(HotkeyBlock, reserved69), 11, "reserved", unused},
    {offsetof(HotkeyBlock, comboKeys), 2, "combination key", key, 4},
    {offsetof(HotkeyBlock, reserved88), 24, "reserved", unused},
    {offsetof(HotkeyBlock, quickChat), 1024, "QuickChat", phrases},
    {offsetof(HotkeyBlock, mouseKeys), 2, "mouse key", key, 3},
    {offsetof(HotkeyBlock, winLockMouse), 2, "WinLockMouse", key},
    {offsetof(HotkeyBlock, hotkeyContrl), 2, "HotkeyContrl", key},
    {offsetof(HotkeyBlock, ledgerKey0), 2, "Ledger key 0", key},
    {offsetof(HotkeyBlock, quickChatKey), 2, "QuickChatKey", key},
    {offsetof(HotkeyBlock, chatWheel), 640, "ChatWheel", phrases},
    {offsetof(HotkeyBlock, chatWheelKey), 2, "ChatWheelkey", key},
    {offsetof(HotkeyBlock, heroSkillKeys7to11), 2, "hero skill", key, 5, 7},
    {offsetof(HotkeyBlock, hideUI), 1, "HideUI", yesNo},
    {offsetof(HotkeyBlock, skillHeroOnly), 1, "SkillHeroOnly", yesNo},
    {offsetof(HotkeyBlock, combokeyHeroOnly), 1, "CombokeyHeroOnly", yesNo},
    {offsetof(HotkeyBlock, disableLeftAlt), 1, "DisableLeftAlt", yesNo},
    {offsetof(HotkeyBlock, disableLeftAltShowHP), 1, "DisableLeftAltShowHP", yesNo},
};

}  // namespace

QVector<BlockField> explainBlock(const HotkeyBlock& block) {
  const QByteArray record(reinterpret_cast<const char*>(&block), sizeof(block));
  QVector<BlockField> fields;
  for (const FieldRow& row : kFields) {
    for (int i = 0; i < row.count; ++i) {
      const std::size_t offset = row.offset + static_cast<std::size_t>(i * row.size);
      const QByteArray bytes = record.mid(static_cast<int>(offset), row.size);
      QString name = QLatin1String(row.name);
      if (row.count > 1) name += QStringLiteral(" %1").arg(row.first + i);
      fields.append({offset, name, bytes, row.meaning(bytes)});
    }
  }
  return fields;
}

QStringList phrasesIn(const QByteArray& area) {
  constexpr int kPhrases = 8;
  QStringList phrases;
  int at = 0;
  while (phrases.size() < kPhrases && at < area.size()) {
    const int nul = area.indexOf('\0', at);
    const int end = nul < 0 ? area.size() : nul;
    phrases += QString::fromUtf8(area.mid(at, end - at));
    at = end + 1;
  }
  return phrases;
}
