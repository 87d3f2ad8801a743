#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "brennet/HotkeyBlock.h"
#include "keys/KeyWord.h"
#include "model/HotkeyScheme.h"
#include "model/LoadReport.h"
#include "platform/Files.h"

namespace brennet {

class MarkupDocument;

// The whole state of the player's hotkey settings: the global switch, three schemes of which one
// is current, and the time of the last save.
//
// Every accessor takes a scheme argument last: 0, 1 or 2, or kCurrentScheme. A settings file may
// name a current scheme from 3 to 10: such an index is kept and written back, reads through it
// return the defaults, and writes through it are ignored.
class HotkeyConfig {
 public:
  static constexpr int kCurrentScheme = -1;
  static constexpr int kSchemes = 3;
  // What the schemes are called in a settings file.
  static constexpr std::array<std::u16string_view, kSchemes> kSchemeElements = {
      u"KeyInfo_0", u"KeyInfo_1", u"KeyInfo_2"};
  static constexpr std::uint32_t kLargestIndex = 10;

  HotkeyConfig() = default;
  // Starts from the defaults, then copies everything that an assignment copies.
  HotkeyConfig(const HotkeyConfig& other);
  // Copies the switch, the current index, the save time and every scheme (assignScheme).
  // The result is a copy of the assigned object, not a reference to this one.
  HotkeyConfig operator=(const HotkeyConfig& other);
  ~HotkeyConfig() = default;

  // Puts the defaults in place; HotkeyScheme::reset says what stays.
  void Reset();
  // Reset(), then assignment: no key of the old state can refuse a choice that `main` holds.
  void ResetAndCopyFrom(const HotkeyConfig& main);

  // Exchanges everything with `other` except the report of the load.
  void swap(HotkeyConfig& other) noexcept;

  // Reads the settings file at `path`. Defaults first; returns false, with the defaults in place,
  // when the file is missing, unreadable or not well-formed, or lacks KeyInfo or LastSaveTime.
  // Entries that make no sense are not a failure: each falls back to its default or to no key.
  // After a successful load the game's preference file follows.
  bool Load(std::u16string_view path);
  // Writes the settings file with `lastSaveTime`; this object's own LastSaveTime is left alone.
  // A missing folder is created, one level. Returns whether the file was written whole; after a
  // failure the old file is still there. The game's preference file follows in either case, because
  // it follows what is in memory.
  // `old` says what happens to the file that is replaced.
  bool Save(std::u16string_view path, std::uint32_t lastSaveTime,
            platform::OldContent old = platform::OldContent::Drop);

  // What the last load of this object had to drop. Empty before the first load, after one that
  // failed and after a reset; a save leaves it as it is. It belongs to the load and not to the
  // settings: copies and assignments leave it out, and swap leaves each object its own.
  [[nodiscard]] const LoadReport& loadReport() const { return loadReport_; }

  // Reads or writes one scheme, 0 to 2; false for any other number. The document's position is
  // inside the element that holds the scheme, before its first child, or on that element when
  // writing.
  bool LoadScheme(int scheme, MarkupDocument& document);
  bool SaveScheme(int scheme, MarkupDocument& document) const;

  // The parts of Load and Save that touch no file. loadFrom expects a parsed document, resets first
  // and returns what Load returns; saveTo builds the whole document.
  bool loadFrom(MarkupDocument& document);
  bool saveTo(MarkupDocument& document, std::uint32_t lastSaveTime) const;

  // Checked setters. With `check` off, the value is stored as it is. A number out of range or a
  // refused key (KeyAssignment.h) changes nothing, and they return false.
  bool SetHeroSkillKey(int pos, KeyWord key, bool check, int scheme = kCurrentScheme);
  bool SetItemKey(int slotCode, KeyWord key, bool check, int scheme = kCurrentScheme);
  bool SetMouseKey(int n, KeyWord key, bool check, int scheme = kCurrentScheme);
  bool SetSecretaryKey(int n, KeyWord key, bool check, int scheme = kCurrentScheme);
  // `srcDest`: source key in the high half, destination in the low half.
  bool SetKeyRemap(int n, std::uint32_t srcDest, bool check, int scheme = kCurrentScheme);
  // `keysAB`: A in the low half, B in the high half; `keysCD` likewise.
  bool SetComboKeys(bool check, int scheme, std::uint32_t keysAB, std::uint32_t keysCD);
  bool SetNumComboKeyIndex(std::int32_t mode, int scheme = kCurrentScheme);
  bool SetQuickChatIndex(std::uint32_t set, int scheme = kCurrentScheme);
  // `text` ends in a zero. What exceeds kPhraseUnits is overwritten with zeros in the caller's
  // buffer too; null stores an empty phrase.
  bool SetQuickChatPhrase(std::uint32_t n, char16_t* text, int scheme = kCurrentScheme);
  bool SetChatWheelPhrase(std::uint32_t n, char16_t* text, int scheme = kCurrentScheme);

  bool SetHeroSkillAutocast(int pos, bool on, int scheme = kCurrentScheme);
  bool SetItemAutocast(int slotCode, bool on, int scheme = kCurrentScheme);

  // False, with `*out` untouched, for a code that is not an inventory slot, for a mark that was
  // never set, and for a null `out`.
  bool GetItemKey(int slotCode, KeyWord* out, int scheme = kCurrentScheme) const;
  bool GetItemAutocast(int slotCode, bool* out, int scheme = kCurrentScheme) const;
  bool GetShowFBlood(KeyWord* out, int scheme = kCurrentScheme) const;
  bool GetShowEBlood(KeyWord* out, int scheme = kCurrentScheme) const;
  bool GetWinLockMouse(KeyWord* out, int scheme = kCurrentScheme) const;

  // A scheme to read: the defaults when `scheme` (or the current index) is none of the three.
  [[nodiscard]] const HotkeyScheme& scheme(int scheme = kCurrentScheme) const;
  // A scheme to change without checks; null when it is none of the three.
  [[nodiscard]] HotkeyScheme* editableScheme(int scheme = kCurrentScheme);

  [[nodiscard]] bool enable() const { return enable_; }
  void setEnable(bool enable) { enable_ = enable; }
  // The current scheme, 0 to kLargestIndex. A larger number is refused.
  [[nodiscard]] std::uint32_t index() const { return index_; }
  bool setIndex(std::uint32_t index);
  // The host's own value, as the last load found it; 0 when that failed.
  [[nodiscard]] std::uint32_t LastSaveTime() const { return lastSaveTime_; }
  // Whether the state came from, or went to, a settings file since the last reset.
  [[nodiscard]] bool loaded() const { return loaded_; }
  // Whether a HotkeyBlock was filled from this object since the last reset.
  [[nodiscard]] bool blockBuilt() const { return blockBuilt_; }
  void markBlockBuilt() { blockBuilt_ = true; }
  // Room for one record, zero after a reset. Blocks are filled in the caller's memory instead.
  [[nodiscard]] const HotkeyBlock& blockBuffer() const { return blockBuffer_; }

 private:
  using Schemes = std::array<HotkeyScheme, kSchemes>;

  // `target` with every scheme of `source` assigned to it.
  static Schemes assigned(Schemes target, const Schemes& source);
  void copyFrom(const HotkeyConfig& other, Schemes schemes);

  bool loaded_ = false;
  std::uint32_t lastSaveTime_ = 0;
  bool enable_ = false;
  std::uint32_t index_ = 0;
  Schemes schemes_;
  LoadReport loadReport_;
  bool blockBuilt_ = false;
  HotkeyBlock blockBuffer_{};
};

}  // namespace brennet
