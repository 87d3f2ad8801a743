#include "host/CBrennetImpl.h"

#include <QApplication>

#include <algorithm>
#include <cstring>
#include <exception>
#include <limits>
#include <utility>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "host/LoadTrace.h"
#include "host/WideText.h"
#include "model/BlockFiller.h"
#include "model/BlockMerger.h"
#include "model/KeyConflicts.h"
#include "platform/MemoryProbe.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/pages/SchemeTransferButtons.h"
#include "ui/window/ModalRun.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

using platform::Writability;

constexpr std::uint8_t kVirtualKeyShift = 0x10;
constexpr std::uint8_t kVirtualKeyCapsLock = 0x14;

constexpr std::int32_t kApplied = 0;
constexpr std::int32_t kNotApplied = -1;

// The number of bytes that the caller announces. `block` itself need not be aligned.
std::uint32_t announcedSize(const HotkeyBlock* block) {
  std::uint32_t size = 0;
  std::memcpy(&size, block, sizeof(size));
  return size;
}

std::size_t sharedSize(std::uint32_t announced) {
  return std::min<std::size_t>(announced, sizeof(HotkeyBlock));
}

// Whether a record's size and its announced bytes, at most the first `most` of them, can be
// written.
Writability probeBlock(HotkeyBlock* block, std::size_t most) {
  if (block == nullptr) return Writability::NotWritable;
  const Writability size = platform::probeMemory(block, sizeof(std::uint32_t));
  if (size != Writability::Writable) return size;
  return platform::probeMemory(block, std::min<std::size_t>(announcedSize(block), most));
}

// Nothing is thrown across the interface: running out of memory is a failure like any other.
template <class Result, class Operation>
Result orElse(Result failure, Operation operation) noexcept {
  try {
    return operation();
  } catch (const std::exception&) {
    return failure;
  }
}

}  // namespace

CBrennetImpl::CBrennetImpl() = default;
CBrennetImpl::~CBrennetImpl() = default;

bool CBrennetImpl::LoadSettings(const wchar_t* path) noexcept {
  if (path == nullptr) return false;
  std::u16string name;
  try {
    name = fromWide(path);
  } catch (const std::exception&) {
    // The host no longer means the file that was loaded before.
    config_.Reset();
    settingsPath_.clear();
    return false;
  }
  settingsPath_ = std::move(name);
  isLoadTold_ = false;
  unreadFile_ = platform::OldContent::Keep;
  try {
    if (!config_.Load(settingsPath_)) return false;
  } catch (const std::exception&) {
    config_.Reset();
    return false;
  }
  unreadFile_ = platform::OldContent::Drop;
  try {
    trace(config_.loadReport());
  } catch (const std::exception&) {
    // The settings are loaded; only lines of the trace are missing.
  }
  return true;
}

void CBrennetImpl::SetDataFolder(const wchar_t* folder) noexcept {
  try {
    dataFolder_ = fromWide(folder);
  } catch (const std::exception&) {
    dataFolder_.clear();
  }
}

bool CBrennetImpl::ShowSettingsDialog(bool* saved, std::uint32_t saveTime) noexcept {
  if (saved == nullptr) return false;
  *saved = false;
  // Without the host's application object there are no windows.
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) return false;
  if (isDialogOpen_) return false;
  isDialogOpen_ = true;
  const bool isConfirmed = orElse(false, [&] { return runDialog(); });
  isDialogOpen_ = false;
  if (isConfirmed) *saved = orElse(false, [&] { return saveWorkingCopy(saveTime); });
  return isConfirmed;
}

bool CBrennetImpl::runDialog() {
  workingCopy_.ResetAndCopyFrom(config_);
  if (!dota7_) dota7_ = std::make_unique<Dota7KeyInfoManager>();
  CHotkeySettingDlg dialog(workingCopy_, *dota7_);
  dialog.setDataFolder(dataFolder_);
  dialog.transfers().setOwnFile(toQString(settingsPath_));
  if (!std::exchange(isLoadTold_, true)) dialog.tellDroppedKeys(config_.loadReport());
  return runModal(dialog) == QDialog::Accepted;
}

bool CBrennetImpl::FillHotkeyBlock(HotkeyBlock* block) noexcept {
  if (probeBlock(block, sizeof(HotkeyBlock)) != Writability::Writable) return false;
  const std::uint32_t size = announcedSize(block);

  HotkeyBlock filled;
  fillBlock(config_, filled);
  filled.size = size;
  std::memcpy(block, &filled, sharedSize(size));
  return true;
}

bool CBrennetImpl::SetEnabled(bool enable, std::uint32_t saveTime) noexcept {
  if (enable == config_.enable()) return false;
  config_.setEnable(enable);
  return orElse(false, [&] { return save(config_, saveTime); });
}

bool CBrennetImpl::IsCapsLockUsed() noexcept {
  return isKeyUsed(config_.scheme(), kVirtualKeyCapsLock);
}

bool CBrennetImpl::IsShiftUsed() noexcept {
  return isKeyUsed(config_.scheme(), kVirtualKeyShift);
}

std::int32_t CBrennetImpl::ApplyHotkeyBlock(HotkeyBlock* block, std::uint32_t saveTime) noexcept {
  constexpr std::size_t kWhole = std::numeric_limits<std::uint32_t>::max();
  const Writability writability = probeBlock(block, kWhole);
  // Zero also means that there was nothing to apply: no record, or one that cannot be written.
  if (writability == Writability::NotWritable) return kApplied;
  if (writability == Writability::Unknown) return kNotApplied;
  const std::uint32_t size = announcedSize(block);
  // The working copy holds changes that the player is making, which would be lost.
  if (isDialogOpen_) return kNotApplied;

  HotkeyBlock current;
  fillBlock(config_, current);
  // What an older, shorter record does not carry stays unchanged.
  HotkeyBlock returned = current;
  std::memcpy(&returned, block, sharedSize(size));

  return orElse(kNotApplied, [&] {
    workingCopy_.ResetAndCopyFrom(config_);
    const bool applied =
        mergeBlock(current, returned, sharedSize(size), workingCopy_) && saveWorkingCopy(saveTime);
    return applied ? kApplied : kNotApplied;
  });
}

bool CBrennetImpl::save(HotkeyConfig& config, std::uint32_t saveTime) {
  if (!config.Save(settingsPath_, saveTime, unreadFile_)) return false;
  unreadFile_ = platform::OldContent::Drop;
  return true;
}

bool CBrennetImpl::saveWorkingCopy(std::uint32_t saveTime) {
  // The copy is made first: once the file is written, nothing may fail.
  HotkeyConfig saved = config_;
  saved.ResetAndCopyFrom(workingCopy_);
  if (!save(workingCopy_, saveTime)) return false;
  config_.swap(saved);
  return true;
}

}  // namespace brennet
