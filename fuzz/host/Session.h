#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "brennet/IBrennet.h"
#include "fuzz/host/CallerMemory.h"
#include "fuzz/host/SessionFaults.h"
#include "fuzz/host/SessionScript.h"
#include "fuzz/host/SessionWorld.h"
#include "model/HotkeyConfig.h"

namespace brennet::fuzz {

// A host that does what a script says (SessionScript.h), and watches over what it gets.
//
// Beside the interface it keeps settings of its own, to which nothing bad ever happens, and does
// with them what each call should do. After each call it asks for: the same settings on both sides;
// true for what was done and false for what was not; in the files the new content or the old one,
// byte for byte, and no file that was not there; and nothing written in the caller's memory beyond
// what was announced. What is not as it should be ends the program.
class Session {
 public:
  // The one object of the process, in whatever state.
  explicit Session(IBrennet& brennet) : brennet_(brennet) {}

  void run(std::string_view script);

 private:
  using Place = SessionWorld::Place;

  // What there was in the files before a call.
  struct Before {
    SessionWorld::Files files;
    std::optional<std::string> preferences;
  };

  void start();
  void perform(const Step& step);
  void prepareFaults(const Step& step);
  void load(const Step& step);
  void loadFrom(Place place, const Faults& faults);
  void settle();
  void fill(const Step& step);
  void apply(const Step& step);
  void enable(const Step& step);
  void read();
  void dialog(const Step& step);

  [[nodiscard]] Before before() const;
  void requirePutAside(bool isSaved, const Before& before, bool isFaulty);
  void requireUnchanged(const Before& before) const;
  void requireSaved(bool result, HotkeyConfig& config, std::uint32_t saveTime, const Before& before,
                    bool isFaulty);
  void requirePreferences(HotkeyConfig& config, const Before& before, bool isFaulty) const;
  void requireSameSettings();
  [[nodiscard]] HotkeyBlock expectedBlock();

  IBrennet& brennet_;
  SessionWorld world_;
  CallerMemory memory_;
  Faults faults_;                         // of the next call
  Place place_ = SessionWorld::kNeutral;  // where saves go
  bool isUnread_ = false;                 // the last load could not use what is there
  std::uint32_t lastSaveTime_ = 0;        // that the last call left
  HotkeyConfig main_;
  HotkeyConfig working_;
};

}  // namespace brennet::fuzz
