// Whatever the player does, in the end the registry is as it was (Cancel) or as the pages showed it
// (OK). The seeds are fixed, so failures can be repeated.

#include <map>
#include <random>
#include <utility>
#include <vector>

#include "gameside/dota7/Dota7Settings.h"
#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet {
namespace {

using platform::dwordValue;
using platform::RegFile;
using platform::RegistryValue;
using test::bytesValue;

constexpr int kRuns = 30;
constexpr unsigned kMostSteps = 25;

class Player {
 public:
  explicit Player(unsigned seed) : random_(seed) {}

  unsigned below(unsigned bound) {
    return std::uniform_int_distribution<unsigned>(0, bound - 1)(random_);
  }
  template <class Row>
  const Row& oneOf(std::span<const Row> rows) {
    return rows[below(static_cast<unsigned>(rows.size()))];
  }

  // Something that a value may hold, good or bad.
  RegistryValue value() {
    switch (below(5)) {
      case 0:
        return dwordValue(below(2) == 0 ? below(4) : 0x40 + below(0x200));
      case 1:
        return bytesValue("CTRL + A");
      case 2:
        return bytesValue(std::string(below(300), 'a'));
      case 3:
        return bytesValue("\xFF\xD0");
      default:
        return {below(8), std::string(below(6), '\1')};
    }
  }

  // One of a few keys, so that conflicts are common.
  Dota7Key key() {
    constexpr int kModifiers[] = {Dota7Key::kNoModifier, Dota7Key::kCtrl, Dota7Key::kAlt};
    return {static_cast<int>(below(12)) * 5, kModifiers[below(3)]};
  }

  std::u16string phrase() {
    constexpr char16_t kUnits[] = {u'a', u' ', u'\u8C22', u'\u00E9'};
    std::u16string text(below(110), u'a');
    for (char16_t& unit : text) unit = kUnits[below(4)];
    return text;
  }

  void step(Dota7KeyInfoManager& manager) {
    Dota7Settings& settings = manager.settings();
    switch (below(14)) {
      case 0:
        settings.setCast(below(2) == 0 ? Dota7Cast::Normal : Dota7Cast::Quick);
        break;
      case 1:
        manager.refresh();  // a change of the scheme or the mode
        break;
      case 2:
        settings.setOn(oneOf(dota7Switches()), below(2) == 0);
        break;
      case 3:
      case 4:
        settings.setPhrase(oneOf(dota7Phrases()), phrase());
        break;
      case 5:
        settings.clearKey(oneOf(dota7KeyFields()));
        break;
      case 6:
        if (below(20) == 0) settings.reset();
        break;
      case 7:
        settings.loadPhrases();  // the chat page, cancelled
        break;
      case 8:
        undo(manager);
        break;
      case 9:
        redo(manager);
        break;
      default:
        captureKey(settings);
        break;
    }
  }

 private:
  // Undoes what was changed since the last call, or else the step before it.
  void undo(Dota7KeyInfoManager& manager) {
    if (Dota7Step step = manager.takeStep(); !step.empty()) done_.push_back(std::move(step));
    if (done_.empty()) return;
    manager.undo(done_.back());
    undone_.push_back(std::move(done_.back()));
    done_.pop_back();
  }
  void redo(Dota7KeyInfoManager& manager) {
    if (!manager.takeStep().empty()) undone_.clear();
    if (undone_.empty()) return;
    manager.redo(undone_.back());
    done_.push_back(std::move(undone_.back()));
    undone_.pop_back();
  }

  // As on the pages: a key that is in use clears the field.
  void captureKey(Dota7Settings& settings) {
    const Dota7KeyField& field = oneOf(dota7KeyFields());
    if (!settings.storeKey(field, key())) settings.clearKey(field);
  }

  std::mt19937 random_;
  std::vector<Dota7Step> done_, undone_;
};

// Everything that the pages show, in both cast modes.
struct Shown {
  std::vector<Dota7Key> keys;
  std::vector<bool> switches;
  std::vector<std::u16string> phrases;
  friend bool operator==(const Shown&, const Shown&) = default;
};

Shown shownBy(Dota7Settings& settings) {
  Shown shown;
  const Dota7Cast before = settings.cast();
  for (const Dota7Cast cast : {Dota7Cast::Normal, Dota7Cast::Quick}) {
    settings.setCast(cast);
    for (const Dota7KeyField& row : dota7KeyFields()) shown.keys.push_back(settings.key(row));
  }
  settings.setCast(before);
  for (const Dota7Switch& row : dota7Switches()) shown.switches.push_back(settings.isOn(row));
  for (const Dota7Phrase& row : dota7Phrases()) shown.phrases.push_back(settings.phrase(row));
  return shown;
}

class Dota7Property : public test::Dota7Test {
 protected:
  // Sets some values of any kind, and some that are not ours.
  void fill(Player& player) {
    for (unsigned i = player.below(40); i > 0; --i) {
      const Dota7KeyField& field = player.oneOf(dota7KeyFields());
      const Dota7ValuePair& values =
          field.values(player.below(2) == 0 ? Dota7Cast::Normal : Dota7Cast::Quick);
      registry.set(field.keyPath, player.below(2) == 0 ? values.code : values.text, player.value());
      registry.set(kDota7PhrasesPath, player.oneOf(dota7Phrases()).valueName, player.value());
      registry.set(kDota7ControlPath, u"Foreign", player.value());
    }
  }
};

TEST_F(Dota7Property, CancelGivesBackEveryByteAndOkKeepsWhatWasShown) {
  for (int run = 0; run < kRuns; ++run) {
    Player player(static_cast<unsigned>(run));
    fill(player);
    const RegFile before = registry.content();
    manager.refresh();
    for (unsigned i = player.below(kMostSteps); i > 0; --i) player.step(manager);

    if (player.below(2) == 0) {
      manager.cancelChanges();
      ASSERT_EQ(registry.content(), before) << "run " << run;
    } else {
      const Shown shown = shownBy(settings);
      const RegFile written = registry.content();
      manager.acceptChanges();
      ASSERT_EQ(registry.content(), written) << "everything was written at once; run " << run;
      Dota7KeyInfoManager other;
      other.settings().load();
      ASSERT_EQ(shownBy(other.settings()), shown) << "run " << run;
      ASSERT_EQ(written.find(test::below(kDota7ControlPath), u"Foreign") != nullptr,
                before.find(test::below(kDota7ControlPath), u"Foreign") != nullptr);
    }
  }
}

}  // namespace
}  // namespace brennet
