#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>

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

// Does `act`, which has to bring one warning up: about `text`, modal to `parent`, with OK alone.
template <class Act>
void expectWarning(const QWidget& parent, const char* text, Act act) {
  int boxes = 0;
  whenBoxIsShown([&](QMessageBox& box) {
    ++boxes;
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("IDS_TITLE"));
    EXPECT_EQ(box.text(), QLatin1String(text));
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    EXPECT_EQ(box.parentWidget(), &parent);
    EXPECT_STREQ(box.metaObject()->className(), "CMsgBox");
    box.button(QMessageBox::Ok)->click();
  });
  QTimer another;
  QObject::connect(&another, &QTimer::timeout, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr || boxes == 0) return;
    ADD_FAILURE() << "there is one more box";
    box->close();
  });
  another.start(0);
  act();
  EXPECT_EQ(boxes, 1);
}

// Fails where a box comes up in its life, instead of waiting for somebody to close it.
class NoBoxes {
 public:
  NoBoxes() {
    QObject::connect(&timer_, &QTimer::timeout, [] {
      QWidget* const box = QApplication::activeModalWidget();
      if (box == nullptr) return;
      ADD_FAILURE() << "a box comes up";
      box->close();
    });
    timer_.start(0);
  }

 private:
  QTimer timer_;
};

}  // namespace brennet::test
