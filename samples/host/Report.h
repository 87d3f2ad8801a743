#pragma once

#include <QString>
#include <QStringList>

#include <brennet/HotkeyBlock.h>
#include <brennet/IBrennet.h>

#include "GameSide.h"

// What the library answered, collected while the host works.
struct Report {
  QString settings;
  bool loaded = false;
  QStringList notUsed;   // the dropped keys of the settings file, in words
  QStringList refusals;  // what the library refused, in words
  brennet::HotkeyBlock block{};
  std::uint32_t lastSaveTime = 0;
  bool capsLockUsed = false;
  bool shiftUsed = false;
  // Since the load, and outside the library since before it.
  QVector<Change> blockChanges;
  QVector<Change> preferenceChanges;
  QVector<Change> registryChanges;
};

// The state before the host began to work: outside the library, and in the block.
struct Before {
  GameSide gameSide;
  Sections registryDefaults;
  Sections block;
};

// The fields of the block as the library fills it now, in words; those of a block of zeros if it
// fills none.
Sections filledBlock(brennet::IBrennet& brennet);

// Asks the library for everything that a report shows.
void fillReport(brennet::IBrennet& brennet, const Before& before, Report& report);

// For a person: the result of the load, the active scheme in words, every field of the block when
// `withBlock` is set, and what has changed.
QString textReport(const Report& report, bool withBlock);

// The same for a program.
QByteArray jsonReport(const Report& report);
