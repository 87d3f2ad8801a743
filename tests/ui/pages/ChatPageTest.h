#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QMessageBox>
#include <QWidget>

#include <optional>

#include "tests/ui/UiTest.h"

// What the tests of the two windows with quick-chat phrases share.

namespace brennet::test {

template <class Widget>
Widget& find(const QWidget& window, const QString& name) {
  auto* const widget = window.findChild<Widget*>(name);
  if (widget == nullptr) qFatal("there is no %s", qPrintable(name));
  return *widget;
}

inline QString accessible(QWidget& widget, QAccessible::Text what) {
  return QAccessible::queryAccessibleInterface(&widget)->text(what);
}

inline QString buddyOf(const QWidget& window, const QString& label) {
  const QWidget* const buddy = find<QLabel>(window, label).buddy();
  return buddy == nullptr ? QString() : buddy->objectName();
}

// Calls `act`, which has to bring up exactly one warning: with this text, a child of `parent`, with
// an OK button alone. Returns what the warning says below the text.
template <class Act>
QString expectWarning(const QWidget& parent, const char* text, Act act) {
  std::optional<NoBoxes> noMore;
  QString why;
  const auto expected = whenBoxIsShown([&](QMessageBox& box) {
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("IDS_TITLE"));
    EXPECT_EQ(box.text(), QLatin1String(text));
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    EXPECT_EQ(box.parentWidget(), &parent);
    EXPECT_STREQ(box.metaObject()->className(), "CMsgBox");
    why = box.informativeText();
    box.button(QMessageBox::Ok)->click();
    noMore.emplace();
  });
  act();
  return why;
}

}  // namespace brennet::test
