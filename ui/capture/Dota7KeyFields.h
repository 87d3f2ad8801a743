#pragma once

#include <functional>
#include <vector>

#include "gameside/dota7/Dota7Settings.h"
#include "gameside/dota7/Dota7Values.h"
#include "keys/KeyWord.h"
#include "ui/capture/HolderOutline.h"
#include "ui/capture/KeyFieldFilter.h"

class QHelpEvent;
class QString;

namespace brennet {

class Dota7KeyInfoManager;
class HotkeyConfig;

// The key fields of a DotA 7 page. Each key is in the registry at once.
class Dota7KeyFields {
 public:
  // `tellUsed` tells the player that a key is already used, and by what; it may run an event loop.
  // `config` has the key of the chat wheel, which a paste takes away; it may be null. Both
  // `manager` and `config` outlive this object.
  Dota7KeyFields(Dota7KeyInfoManager& manager, HotkeyConfig* config,
                 std::function<void(const QString& why)> tellUsed);
  Dota7KeyFields(const Dota7KeyFields&) = delete;
  Dota7KeyFields& operator=(const Dota7KeyFields&) = delete;
  ~Dota7KeyFields() = default;

  // See KeyFieldFilter; fields for phrases, which have similar names, take text. The fields outlive
  // this object.
  void install(const QWidget& window, QObject& page);

  // Shows the keys of the current cast mode.
  void refresh();

  // Gives the keyboard to that field, and outlines it until the next press.
  void leadTo(const Dota7KeyField& row);

  // A field, and the values that it edits.
  struct Field {
    QLineEdit* field;
    const Dota7KeyField* row;
  };
  [[nodiscard]] const std::vector<Field>& fields() const { return fields_; }

  // Stores a key that no other field has, or no key, and shows it, without a word to the player. A
  // refused key changes nothing.
  void put(const Dota7KeyField& row, Dota7Key key);

  // For the event filter of the page: whether the event was consumed.
  bool filter(QObject* watched, QEvent* event);

 private:
  bool showToolTip(QObject* watched, const QHelpEvent& event) const;
  [[nodiscard]] QString toolTipOf(const Dota7KeyField& row) const;
  // What has a key, for a player who looks at the window of `from`.
  [[nodiscard]] static QString placeText(const Dota7KeyField& row, const Dota7KeyField& from);
  void take(QLineEdit& field, const Capture& capture);
  // Outlines the field that has a refused key until the next press, and tells the player of it.
  void tell(const Dota7KeyField& refusing, KeyWord key, const Dota7KeyField* holder);
  [[nodiscard]] QString textOf(KeyWord key) const;

  Dota7KeyInfoManager* manager_;
  HotkeyConfig* config_;
  std::function<void(const QString& why)> tellUsed_;
  KeyFieldFilter filter_;
  std::vector<Field> fields_;
  HolderOutline outline_;
};

}  // namespace brennet
