#include "ui/window/SystemColors.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace brennet::test {
namespace {

QPalette system() {
  QPalette colors;
  colors.setColor(QPalette::WindowText, 0x111111);
  colors.setColor(QPalette::Window, 0x222222);
  colors.setColor(QPalette::Highlight, 0x333333);
  colors.setColor(QPalette::HighlightedText, 0x444444);
  colors.setColor(QPalette::Disabled, QPalette::WindowText, 0x555555);
  return colors;
}

// The first rule of the sheet, in the colours of the system.
std::string converted(const char* sheet) {
  return inSystemColors(QString::fromLatin1(sheet), system())
      .section(QLatin1Char('\n'), 0, 0)
      .toStdString();
}

TEST(SystemColors, StandForThoseOfTheSkin) {
  const struct {
    const char* skin;
    const char* expected;
  } kRows[] = {
      {"/* a { color: red } */ QLabel { color: #909fb0; margin: 1px }",
       "QLabel { color: #111111; margin: 1px; }"},
      {"QLabel:disabled { color: #909fb0 }", "QLabel:disabled { color: #555555; }"},
      {"QLabel { color: transparent; background: transparent }",
       "QLabel { color: transparent; background: transparent; }"},
      {"A, B { background: white; border: 1px solid #526e7a }",
       "A, B { background: #222222; border: 1px solid #111111; }"},
      {"A:focus { border: 1px solid #fff; outline: 2px solid #FFFFFF }",
       "A:focus { border: 1px solid #333333; outline: 2px solid #333333; }"},
      {"A { selection-background-color: #435777; selection-color: white }",
       "A { selection-background-color: #333333; selection-color: #444444; }"},
      {"A::item:selected { background: #435777; color: white }",
       "A::item:selected { background: #333333; color: #444444; }"},
      {"QPushButton:hover { background: #435777; color: #deebfe }",
       "QPushButton:hover { background: #333333; color: #444444; }"},
      {"QScrollBar::handle { background: #5C6B98 }", "QScrollBar::handle { background: #111111; }"},
      {"QPushButton:focus { background: qlineargradient(x1: 0, stop: 0 #435777, stop: 1 #ffffff) }",
       "QPushButton:focus { background: qlineargradient(x1: 0, stop: 0 #222222, stop: 1 #333333); "
       "}"},
      {"QPushButton#tab { border-image: url(:/skin/image/bg.png) 0 0 52 0 }",
       "QPushButton#tab { border-image: none; border: 1px solid #111111; background: #222222; "
       "color: #111111; }"},
      {"#btnClose:hover { background: #414E6C; border-image: url(x.png) 1 }",
       "#btnClose:hover {  background: #414E6C;  border-image: url(x.png) 1 ; }"},
  };
  for (const auto& row : kRows) EXPECT_EQ(converted(row.skin), row.expected) << row.skin;
}

// No rule of the skin may keep a colour but those around pictures.
TEST(SystemColors, AreAllThatIsLeftInTheSkin) {
  const QSet<QString> allowed = {QStringLiteral("#111111"), QStringLiteral("#222222"),
                                 QStringLiteral("#333333"), QStringLiteral("#444444"),
                                 QStringLiteral("#555555"), QStringLiteral("#1e242f"),
                                 QStringLiteral("#414e6c"), QStringLiteral("#414e6e")};
  const QRegularExpression color(QStringLiteral("#[0-9a-fA-F]{3,8}\\b|\\bwhite\\b|\\bdarkgray\\b"));
  for (const char* const name : {":/skin/war3key.qss", ":/skin/msgbox.qss"}) {
    QFile file{QLatin1String(name)};
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString sheet = inSystemColors(QString::fromUtf8(file.readAll()), system());
    for (auto colors = color.globalMatch(sheet); colors.hasNext();) {
      const QRegularExpressionMatch found = colors.next();
      EXPECT_TRUE(allowed.contains(found.captured().toLower()))
          << name << ": " << qPrintable(sheet.mid(found.capturedStart() - 60, 80));
    }
    EXPECT_EQ(sheet.count(QLatin1Char('{')), sheet.count(QLatin1Char('}')));
  }
}

}  // namespace
}  // namespace brennet::test
