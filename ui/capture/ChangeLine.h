#pragma once

#include <QString>
#include <QVariant>
#include <QWidget>

namespace brennet {

// The line of a control's tool tip that says what its setting was when the dialog opened. It is
// kept with the control, where those find it who make the tool tip. Empty while nothing differs.

inline constexpr char kChangeLine[] = "changeLine";

inline QString changeLine(const QWidget& control) {
  return control.property(kChangeLine).toString();
}

inline void setChangeLine(QWidget& control, const QString& line) {
  control.setProperty(kChangeLine, line);
}

}  // namespace brennet
