#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>
#include <cstddef>

#include <brennet/HotkeyBlock.h>

// One field of a HotkeyBlock in readable form.
struct BlockField {
  std::size_t offset;
  QString name;
  QByteArray bytes;
  QString meaning;
};

// Every field of `block`, in the order of the record.
QVector<BlockField> explainBlock(const brennet::HotkeyBlock& block);

// The eight phrases that are packed into `area`.
QStringList phrasesIn(const QByteArray& area);
