#include "ui/history/EditHistory.h"

#include <utility>

#include "gameside/dota7/Dota7KeyInfoManager.h"

namespace brennet {
namespace {

bool isSame(const ConfigMoment& a, const ConfigMoment& b) {
  return a.enable == b.enable && a.index == b.index && a.schemes == b.schemes;
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
                .dota7 = manager_.takeStep(),
                .castBefore = lastCast_,
                .castAfter = manager_.settings().cast(),
                .title = title};
  lastCast_ = step.castAfter;
  if (isSame(step.before, step.after) && !step.isDota7()) return false;
  last_ = step.after;
  forgetDota7();
  done_.push_back(std::move(step));
  undone_.clear();
  return true;
}

const EditStep* EditHistory::undoable() const {
  return done_.empty() ? nullptr : &done_.back();
}

const EditStep* EditHistory::redoable() const {
  return undone_.empty() ? nullptr : &undone_.back();
}

const EditStep* EditHistory::undo() {
  note();
  if (done_.empty()) return nullptr;
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  const EditStep& step = undone_.back();
  restore(step.before);
  if (step.isDota7()) {
    manager_.settings().setCast(step.castBefore);
    manager_.undo(step.dota7);
  }
  lastCast_ = manager_.settings().cast();
  return &step;
}

const EditStep* EditHistory::redo() {
  if (note() || undone_.empty()) return nullptr;
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  const EditStep& step = done_.back();
  restore(step.after);
  if (step.isDota7()) {
    manager_.settings().setCast(step.castAfter);
    manager_.redo(step.dota7);
  }
  lastCast_ = manager_.settings().cast();
  return &step;
}

// Copies are made first, so that a scheme is never half restored.
void EditHistory::restore(const ConfigMoment& moment) {
  forgetDota7();
  config_.setEnable(moment.enable);
  config_.setIndex(moment.index);
  for (int i = 0; i < HotkeyConfig::kSchemes; ++i) {
    const auto& scheme = moment.schemes[static_cast<std::size_t>(i)];
    if (scheme == last_.schemes[static_cast<std::size_t>(i)]) continue;
    HotkeyScheme copy = *scheme;
    *config_.editableScheme(i) = std::move(copy);
  }
  last_ = moment;
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
