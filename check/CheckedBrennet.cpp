#include "check/CheckedBrennet.h"

#include "check/Session.h"

namespace brennet::check {
namespace {

// Has `check`(session) look at the arguments and `call`(library) make the call, whose result it
// returns. A call on something else than the object is not passed on: its arguments are not where
// they belong.
template <class Check, class Call>
auto forward(Slot slot, const IBrennet* object, Check check, Call call) {
  Session& session = Session::current();
  using Result = decltype(call(session.target));
  if (object != &session.object) {
    session.findings.report(Rule::Object, slot);
    return static_cast<Result>(kSlots[indexOf(slot)].failure);
  }
  HostCalls::Running running(session.calls, slot);
  check(session);
  running.passOn();
  return call(session.target);
}

// The same for slots without arguments.
template <class Call>
auto forward(Slot slot, const IBrennet* object, Call call) {
  return forward(slot, object, [](Session&) {}, call);
}

}  // namespace

bool CheckedBrennet::LoadSettings(const wchar_t* path) {
  return forward(
      Slot::LoadSettings, this,
      [=](Session& session) { checkText(session.findings, Slot::LoadSettings, path); },
      [=](IBrennet& library) { return library.LoadSettings(path); });
}

void CheckedBrennet::SetDataFolder(const wchar_t* folder) {
  forward(
      Slot::SetDataFolder, this,
      [=](Session& session) { checkText(session.findings, Slot::SetDataFolder, folder); },
      [=](IBrennet& library) { library.SetDataFolder(folder); });
}

bool CheckedBrennet::ShowSettingsDialog(bool* saved, std::uint32_t saveTime) {
  return forward(
      Slot::ShowSettingsDialog, this,
      [=](Session& session) { checkResult(session.findings, Slot::ShowSettingsDialog, saved); },
      [=](IBrennet& library) { return library.ShowSettingsDialog(saved, saveTime); });
}

bool CheckedBrennet::FillHotkeyBlock(HotkeyBlock* block) {
  const bool isFilled = forward(
      Slot::FillHotkeyBlock, this,
      [=](Session& session) { session.records.check(Slot::FillHotkeyBlock, block); },
      [=](IBrennet& library) { return library.FillHotkeyBlock(block); });
  if (isFilled) Session::current().records.noteFilled(*block);
  return isFilled;
}

std::uint8_t CheckedBrennet::GetDisableLWinFlag() {
  return forward(Slot::GetDisableLWinFlag, this,
                 [](IBrennet& library) { return library.GetDisableLWinFlag(); });
}

std::uint32_t CheckedBrennet::GetLastSaveTime() {
  return forward(Slot::GetLastSaveTime, this,
                 [](IBrennet& library) { return library.GetLastSaveTime(); });
}

bool CheckedBrennet::SetEnabled(bool enable, std::uint32_t saveTime) {
  return forward(Slot::SetEnabled, this,
                 [=](IBrennet& library) { return library.SetEnabled(enable, saveTime); });
}

std::uint8_t CheckedBrennet::GetViewNoDragFlag() {
  return forward(Slot::GetViewNoDragFlag, this,
                 [](IBrennet& library) { return library.GetViewNoDragFlag(); });
}

bool CheckedBrennet::IsCapsLockUsed() {
  return forward(Slot::IsCapsLockUsed, this,
                 [](IBrennet& library) { return library.IsCapsLockUsed(); });
}

bool CheckedBrennet::IsShiftUsed() {
  return forward(Slot::IsShiftUsed, this, [](IBrennet& library) { return library.IsShiftUsed(); });
}

std::int32_t CheckedBrennet::ApplyHotkeyBlock(HotkeyBlock* block, std::uint32_t saveTime) {
  return forward(
      Slot::ApplyHotkeyBlock, this,
      [=](Session& session) {
        if (session.records.check(Slot::ApplyHotkeyBlock, block)) {
          session.records.checkReserved(*block);
        }
      },
      [=](IBrennet& library) { return library.ApplyHotkeyBlock(block, saveTime); });
}

std::uint8_t CheckedBrennet::GetStartJSQFlag() {
  return forward(Slot::GetStartJSQFlag, this,
                 [](IBrennet& library) { return library.GetStartJSQFlag(); });
}

}  // namespace brennet::check
