#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "gameside/Dota7Change.h"
#include "gameside/Dota7KeyNames.h"
#include "gameside/Dota7Settings.h"
#include "platform/Registry.h"

namespace brennet {

// The DotA 7 settings: the names of their keys, their values, and the way of every change into the
// registry and out of it again.
//
// A change is recorded under the object name of its field and written at once. Before a value is
// first changed, what stood there is kept, until the changes are accepted or cancelled. What the
// registry does not let us write is passed over in silence; no key is created. GUI thread only.
class Dota7KeyInfoManager : public QObject {
  Q_OBJECT

 public:
  // The one of this process, built on first use.
  static Dota7KeyInfoManager& instance();

  Dota7KeyInfoManager() = default;

  // The name of a key, and the text of a key with a modifier key; see Dota7KeyNames.h.
  std::u16string keyName(int code) { return names_.keyName(code); }
  std::u16string keyText(int keyCode, int modifierCode) {
    return names_.keyText(keyCode, modifierCode);
  }
  [[nodiscard]] const Dota7KeyNames& names() const { return names_; }

  // What the pages show, as it was last read and changed.
  [[nodiscard]] Dota7Settings& settings() { return settings_; }

  // Keeps the change under the object name of its field, in place of an earlier one.
  void record(std::u16string_view objectName, Dota7Change change);
  // All recorded changes, in the order of their object names.
  [[nodiscard]] const std::map<std::u16string, Dota7Change, std::less<>>& records() const {
    return records_;
  }

  // Writes what the change says. A value that is there already is not written again.
  void writeValue(const Dota7Change& change);

  // The player is content: writes the recorded changes once more and forgets them and what stood
  // there before.
  void acceptChanges();

  // The player wants none of it: forgets the recorded changes, gives the registry back what stood
  // there before, or its absence, and reads the settings again. What stood there is forgotten in
  // any case, also where it could not be given back.
  void cancelChanges();

  // Forgets the recorded changes, which were written when they were made, and reads the settings
  // again. The changes can still be cancelled.
  void refresh();

  // Writes all recorded changes.
  Q_SLOT void writeRecords();

 private:
  using Place = std::pair<std::u16string, std::u16string>;  // path of a key, name of a value
  // By the registry's own rule: names that differ in their case alone are one place.
  struct PlaceOrder {
    bool operator()(const Place& a, const Place& b) const;
  };
  // What stood in each place before its first change; nothing: no value.
  using Before = std::map<Place, std::optional<platform::RegistryValue>, PlaceOrder>;

  static void giveBack(const Place& place, const std::optional<platform::RegistryValue>& value);
  void put(platform::RegistryKey& key, Place place, const platform::RegistryValue& value);

  Dota7KeyNames names_;
  std::map<std::u16string, Dota7Change, std::less<>> records_;
  Before before_;
  Dota7Settings settings_{*this};
};

}  // namespace brennet
