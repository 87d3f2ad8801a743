#include "ui/history/EditHistory.h"

#include <utility>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "ui/history/StepText.h"

namespace brennet {
namespace {

bool isSame(const ConfigMoment& a, const ConfigMoment& b) {
  return a.enable == b.enable && a.index == b.index && a.schemes == b.schemes;
}

// Two changes one after the other, as one.
Dota7Step joined(const Dota7Step& first, Dota7Step second) {
  for (const auto& [place, edit] : first) {
    const auto [entry, isNew] = second.try_emplace(place, edit);
    if (!isNew) entry->second.before = edit.before;
  }
  std::erase_if(second,
                [](const auto& entry) { return entry.second.before == entry.second.after; });
  return second;
}

}  // namespace

EditHistory::EditHistory(HotkeyConfig& config, Dota7KeyInfoManager& manager)
    : config_(config), manager_(manager), lastCast_(manager.settings().cast()) {
  static_cast<void>(manager_.takeStep());
  last_ = moment();
  opening_ = last_;
}

// Schemes that are as they were are shared with the last moment.
ConfigMoment EditHistory::moment() const {
  ConfigMoment now{.enable = config_.enable(), .index = config_.index(), .schemes = last_.schemes};
  for (int i = 0; i < HotkeyConfig::kSchemes; ++i) {
    auto& scheme = now.schemes[static_cast<std::size_t>(i)];
    if (scheme != nullptr && *scheme == config_.scheme(i)) continue;
    scheme = std::make_shared<const HotkeyScheme>(config_.scheme(i));
  }
  return now;
}

bool EditHistory::note(const QString& title) {
  EditStep step{.before = last_,
                .after = moment(),
                .dota7 = joined(unseen_, manager_.takeStep()),
                .castBefore = lastCast_,
                .castAfter = manager_.settings().cast(),
                .title = title};
  lastCast_ = step.castAfter;
  if (isSame(step.before, step.after) && !step.isDota7()) return false;
  forgetDota7();
  if (!isVisible(step)) {
    join(std::move(step));
    return false;
  }
  unseen_.clear();
  last_ = step.after;
  done_.push_back(std::move(step));
  undone_.clear();
  return true;
}

// What nobody can see is undone and done again with the step before it, or with the first one.
void EditHistory::join(EditStep step) {
  if (done_.empty()) {
    unseen_ = std::move(step.dota7);
    return;
  }
  EditStep& last = done_.back();
  last.dota7 = joined(last.dota7, std::move(step.dota7));
  last.after = last_ = std::move(step.after);
  last.castAfter = step.castAfter;
}

const EditStep* EditHistory::undoable() const {
  return done_.empty() ? nullptr : &done_.back();
}

const EditStep* EditHistory::redoable() const {
  return undone_.empty() ? nullptr : &undone_.back();
}

const EditStep* EditHistory::undo() {
  note();
  if (done_.empty()) {
    restore(last_);
    static_cast<void>(restoreDota7({}, true));  // what nobody has seen since
    return nullptr;
  }
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  restore(undone_.back().before);
  if (restoreDota7(undone_.back(), true)) return &undone_.back();
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  return &done_.back();
}

const EditStep* EditHistory::redo() {
  if (note() || undone_.empty()) return nullptr;
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  restore(done_.back().after);
  if (restoreDota7(done_.back(), false)) return &done_.back();
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  return &undone_.back();
}

// Copies are made first, so that a scheme is never half restored.
void EditHistory::restore(const ConfigMoment& moment) {
  forgetDota7();
  config_.setEnable(moment.enable);
  config_.setIndex(moment.index);
  for (int i = 0; i < HotkeyConfig::kSchemes; ++i) {
    const auto& scheme = moment.schemes[static_cast<std::size_t>(i)];
    if (*scheme == config_.scheme(i)) continue;
    HotkeyScheme copy = *scheme;
    *config_.editableScheme(i) = std::move(copy);
  }
  last_ = moment;
}

// Returns whether the registry has taken it all.
bool EditHistory::restoreDota7(const EditStep& step, bool isUndo) {
  bool isRestored = unseen_.empty() || manager_.undo(std::exchange(unseen_, {}));
  if (step.isDota7()) {
    manager_.settings().setCast(isUndo ? step.castBefore : step.castAfter);
    isRestored = (isUndo ? manager_.undo(step.dota7) : manager_.redo(step.dota7)) && isRestored;
  }
  lastCast_ = manager_.settings().cast();
  return isRestored;
}

const HotkeyScheme& EditHistory::openingScheme() const {
  const std::uint32_t index = config_.index();
  return index < opening_.schemes.size() ? *opening_.schemes[index] : config_.scheme();
}

const Dota7Settings& EditHistory::openingDota7() {
  if (!openingDota7_) openingDota7_.emplace(manager_.settingsBefore());
  openingDota7_->setCast(manager_.settings().cast());
  return *openingDota7_;
}

}  // namespace brennet
