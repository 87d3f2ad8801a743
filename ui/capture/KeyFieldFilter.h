#pragma once

#include <functional>
#include <vector>

#include "ui/capture/KeyCapture.h"

class QEvent;
class QLineEdit;
class QObject;
class QWidget;

namespace brennet {

// The line edits in `window` that are named "edt...", as all fields for keys and phrases are.
[[nodiscard]] std::vector<QLineEdit*> editFieldsOf(const QWidget& window);

// The event filter of line edits that take the next key instead of text. One object serves all
// fields of a page; the page decides what a key means.
class KeyFieldFilter {
 public:
  // Whether a field captures keys; the others take text as usual.
  using Captures = std::function<bool(const QLineEdit&)>;
  // Gets every outcome that changes a field, never Ignored. May run an event loop, as its last act.
  using OnCapture = std::function<void(QLineEdit&, const Capture&)>;

  KeyFieldFilter(CaptureStyle style, Captures captures, OnCapture onCapture);

  // Makes `page` the event filter of all edit fields of `window`. Those that capture keys take
  // nothing else; input methods, which would swallow keys, are off there. Returns those.
  std::vector<QLineEdit*> install(const QWidget& window, QObject& page) const;

  // For the event filter of the page: whether the event was consumed.
  bool filter(QObject* watched, QEvent* event);

  // Forgets what was begun with a lone modifier.
  void forget() { static_cast<void>(capture_.leave()); }

 private:
  bool handle(QObject* watched, QEvent* event);
  void pass(QLineEdit& field, const Capture& capture) const;

  KeyCapture capture_;
  Captures captures_;
  OnCapture onCapture_;
};

}  // namespace brennet
