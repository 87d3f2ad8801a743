// The record that goes to the game and back, at its full size: 1807 bytes without gaps, in
// little-endian order.
#pragma once

constexpr unsigned kRecordSize = 1807;

// The bytes of a record's memory before anything is stored there.
constexpr unsigned char kRecordFiller = 0xEE;

// Offsets of some fields, with their widths.
enum Offset : unsigned {
  kSize = 0,              // 4 bytes
  kFlags = 4,             // 4
  kFirstHeroSkill = 8,    // 2
  kZoomValue = 68,        // 1
  kHotkeyContrl = 1144,   // 2
  kLedgerKey0 = 1146,     // 2
  kChatWheelKey = 1790,   // 2
  kHeroSkill7 = 1792,     // 2
  kHideUI = 1802,         // 1
  kLeftAltShowHP = 1806,  // 1
};

class Record {
 public:
  // Memory of `size` bytes that announces `announced` bytes; its other bytes are kRecordFiller. The
  // page behind it allows no access.
  Record(unsigned size, unsigned announced);
  ~Record();

  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  [[nodiscard]] unsigned char* bytes() const { return bytes_; }
  [[nodiscard]] unsigned number(Offset offset, unsigned width) const;
  void setNumber(Offset offset, unsigned width, unsigned value) const;

  void makeReadOnly() const;

 private:
  unsigned char* pages_;
  unsigned char* bytes_;
};
