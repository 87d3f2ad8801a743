#pragma once

#include <functional>
#include <optional>

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
  std::function<bool(const QLineEdit&)> captures;
  // The setting that a field edits, if any.
  std::function<std::optional<KeySetting>(const QLineEdit&)> settingOf;
  // Tells the player that a key is used already. May run an event loop.
  std::function<void()> tellUsed;
};

// The key fields of a page: line edits that take the next key in the place of text, and store it.
class CaptureFields {
 public:
  // `config` outlives this object.
  CaptureFields(CapturePage page, HotkeyConfig& config);

  // Makes `page` the event filter of all its line edits named "edt...", and turns input methods off
  // there: they would swallow keys.
  static void install(QWidget& page);

  // For the event filter of the page: whether the event is used up.
  bool filter(QObject* watched, QEvent* event);

 private:
  void handleKey(QLineEdit& field, const QKeyEvent& event);

  CapturePage page_;
  HotkeyConfig* config_;
  KeyCapture capture_;
};

}  // namespace brennet
