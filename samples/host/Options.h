#pragma once

#include <QString>
#include <cstdint>
#include <optional>

// What the command line asks for.
struct Options {
  QString help;     // if not empty, only this text was asked for
  QString library;  // empty: beside the program
  QString settings;
  QString data;
  QString profile;  // empty: a scratch folder, so that no real preference file is touched
  QString saveBlock;
  QString applyBlock;
  QString pictures;
  std::optional<bool> enable;
  std::uint32_t saveTime = 0;
  bool block = false;
  bool dialog = false;
  bool json = false;
};

// The options, or nothing after a message on standard error when they make no sense.
std::optional<Options> parseOptions(const QStringList& arguments);
