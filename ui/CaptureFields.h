#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "ui/KeyCapture.h"
#include "ui/KeySetting.h"

class QEvent;
class QKeyEvent;
class QLineEdit;
class QObject;
class QWidget;

namespace brennet {

// What a page with key fields has of its own.
struct CapturePage {
  CaptureStyle style;
  // Whether a field captures keys; the others take text as usual.
  std::function<bool(const QLineEdit&)> captures = [](const QLineEdit&) { return true; };
  // The setting that a field of this object name edits, if any.
  std::function<std::optional<KeySetting>(std::u16string_view)> settingOf;
  // Hears which field a key was pressed in, before the key is stored.
  std::function<void(const QLineEdit&)> trace = [](const QLineEdit&) {};
  // Tells the player that a key is used already. May run an event loop.
  std::function<void()> tellUsed;
};

// The key fields of a page: line edits that take the next key in the place of text, and store it.
class CaptureFields {
 public:
  // `config` outlives this object.
  CaptureFields(CapturePage page, HotkeyConfig& config);

  // Makes `page` the event filter of all line edits named "edt..." in `window`, and turns input
  // methods off there: they would swallow keys. Nothing but keys gets into those that capture
  // them. The fields outlive this object.
  void install(const QWidget& window, QObject& page);

  // Shows the keys of the current scheme in all fields that have a setting. What was begun with a
  // lone modifier is forgotten.
  void refresh();

  // For the event filter of the page: whether the event is used up.
  bool filter(QObject* watched, QEvent* event);

 private:
  struct Field {
    QLineEdit* field;
    KeySetting setting;
  };

  [[nodiscard]] std::optional<KeySetting> settingOf(const QLineEdit& field) const;
  void handleKey(QLineEdit& field, const QKeyEvent& event);

  CapturePage page_;
  HotkeyConfig* config_;
  KeyCapture capture_;
  std::vector<Field> fields_;
};

}  // namespace brennet
