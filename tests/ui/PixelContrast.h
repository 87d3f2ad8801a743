#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <cmath>

// What the tests of looks measure in pictures of real controls.

namespace brennet::test {

// Brightness as eyes see it, from 0 for black to 1 for white.
[[nodiscard]] inline double luminance(QRgb color) {
  const auto linear = [](int part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
         0.0722 * linear(qBlue(color));
}

// From 1 for the same colour to 21 for black and white.
[[nodiscard]] inline double contrast(QRgb one, QRgb other) {
  const double first = luminance(one) + 0.05;
  const double second = luminance(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

// The control together with whatever its window shows behind it.
[[nodiscard]] inline QImage pictureOf(QWidget& control) {
  const QRect place(control.mapTo(control.window(), QPoint()), control.size());
  return control.window()->grab(place).toImage().convertToFormat(QImage::Format_RGB32);
}

}  // namespace brennet::test
