#pragma once

#include <brennet/HotkeyBlock.h>
#include "check/Findings.h"

namespace brennet::check {

// Reports texts that are no texts: memory that cannot be read before there was a zero.
void checkText(Findings& findings, Slot slot, const wchar_t* text);

// Reports a null pointer, and memory that cannot be written.
void checkResult(Findings& findings, Slot slot, bool* result);

// The records that the host gets and hands back.
class Records {
 public:
  // `findings` outlives this object.
  explicit Records(Findings& findings) : findings_(&findings) {}

  // Reports records that cannot be used as they are: null, not writable, of a strange size. Returns
  // whether all bytes are there that the record announces.
  bool check(Slot slot, HotkeyBlock* block);

  // The library has filled the record, which is valid.
  void noteFilled(const HotkeyBlock& block);

  // Reports reserved bits that are not as they were filled. The record is valid.
  void checkReserved(const HotkeyBlock& block);

 private:
  Findings* findings_;
  HotkeyBlock filled_{};
};

}  // namespace brennet::check
