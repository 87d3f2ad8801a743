#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "model/HotkeyConfig.h"
#include "model/KeySlot.h"
#include "ui/capture/HolderOutline.h"
#include "ui/capture/KeyFieldFilter.h"

class QHelpEvent;

namespace brennet {

struct Refusal;

// What a page with fields for keys of the scheme contributes.
struct CapturePage {
  CaptureStyle style;
  KeyFieldFilter::Captures captures = [](const QLineEdit&) { return true; };
  // The key that a field of this object name edits, if any.
  std::function<std::optional<KeySlot>(std::u16string_view)> slotOf;
  // Is told which field a key was pressed in, before the key is stored.
  std::function<void(const QLineEdit&)> trace = [](const QLineEdit&) {};
  // Tells the player that a key is already used, and by what. May run an event loop.
  std::function<void(const QString& why)> tellUsed;
};

// The fields of a page for keys of the current scheme.
class CaptureFields {
 public:
  // `config` outlives this object.
  CaptureFields(CapturePage page, HotkeyConfig& config);
  CaptureFields(const CaptureFields&) = delete;
  CaptureFields& operator=(const CaptureFields&) = delete;
  ~CaptureFields() = default;

  // See KeyFieldFilter. The fields outlive this object.
  void install(const QWidget& window, QObject& page);

  // Shows the keys of the current scheme in all fields that edit one. Forgets what was begun with a
  // lone modifier.
  void refresh();

  // For the event filter of the page: whether the event was consumed.
  bool filter(QObject* watched, QEvent* event);

  // Gives the keyboard to the field that edits this slot, and outlines it until the next press.
  // Does nothing if there is none, or none that the player ever sees.
  void leadTo(KeySlot slot);

  // A field, and the key that it edits.
  struct Field {
    QLineEdit* field;
    KeySlot slot;
  };
  [[nodiscard]] const std::vector<Field>& fields() const { return fields_; }

  // Stores a key that the scheme accepts in `slot`, or kNoKey, and shows it, without a word to the
  // player. A refused key changes nothing.
  void put(KeySlot slot, KeyWord key);

  // Outlines the fields that edit these slots, until the next key is pressed in a field or all are
  // shown anew.
  void outline(const std::vector<KeySlot>& holders);

 private:
  [[nodiscard]] std::optional<KeySlot> slotOf(const QLineEdit& field) const;
  [[nodiscard]] bool showToolTip(QObject* watched, const QHelpEvent& event) const;
  void take(QLineEdit& field, const Capture& capture);
  void tell(const std::optional<KeySlot>& slot, const Refusal& refusal);

  CapturePage page_;
  HotkeyConfig* config_;
  KeyFieldFilter filter_;
  std::vector<Field> fields_;
  HolderOutline outline_;
};

}  // namespace brennet
