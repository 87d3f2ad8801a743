#pragma once

#include <QString>
#include <QStringList>

#include <brennet/HotkeyBlock.h>
#include <brennet/IBrennet.h>

// What the library answered, gathered while the host works.
struct Report {
  QString settings;
  bool loaded = false;
  QStringList refusals;  // what the library said no to, in words
  brennet::HotkeyBlock block{};
  std::uint32_t lastSaveTime = 0;
  bool capsLockUsed = false;
  bool shiftUsed = false;
};

// Asks the library for everything that a report shows.
void fillReport(brennet::IBrennet& brennet, Report& report);

// For a person: the result of the load and the active scheme in words, and every field of the
// block when `withBlock` is set.
QString textReport(const Report& report, bool withBlock);

// The same for a program.
QByteArray jsonReport(const Report& report);
