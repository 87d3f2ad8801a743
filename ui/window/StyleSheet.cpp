#include "ui/window/StyleSheet.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QString>
#include <QTextLayout>
#include <QWidget>

#include "platform/Appearance.h"
#include "ui/window/SystemColors.h"

namespace brennet {

namespace {

std::optional<bool> systemColors;

// How far the visible text is below the middle of its line. Chinese fonts leave more room above
// their characters than below, and a line with Chinese in it gets their height, even in a Latin
// font.
int dropOf(const QString& text, const QFont& font) {
  QTextLayout layout(text, font);
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  if (!line.isValid()) return 0;
  const qreal middleOfLine = (line.ascent() - line.descent()) / 2;  // above the base line
  const QRectF seen = QFontMetricsF(font).tightBoundingRect(text);
  return qRound(middleOfLine + seen.center().y());
}

// The squares of check boxes are in the middle of the line: moves them down to their texts. All
// texts of a window are in one language, so one box tells how far.
QString indicatorRule(const QWidget& window) {
  const auto* const box = window.findChild<QCheckBox*>();
  const int drop = box == nullptr ? 0 : dropOf(box->text(), box->font());
  if (drop <= 0) return {};
  return QStringLiteral(
             "QCheckBox::indicator, QRadioButton::indicator { position: relative; top: %1px; }")
      .arg(drop);
}

}  // namespace

void setSystemColors(std::optional<bool> areUsed) {
  systemColors = areUsed;
}

bool loadStyleSheet(QWidget& widget, const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray text = file.readAll();
  if (!text.isEmpty() && QCoreApplication::instance() != nullptr) {
    QString sheet = QString::fromUtf8(text);
    if (systemColors.value_or(platform::isHighContrast())) {
      sheet = inSystemColors(sheet, QGuiApplication::palette());
    }
    widget.setStyleSheet(sheet + indicatorRule(widget));
    widget.update();
  }
  return true;
}

}  // namespace brennet
