#include "ui/window/WidgetsApart.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QVBoxLayout>

#include "tests/ui/UiTest.h"

namespace brennet {
namespace {

constexpr char kSheet[] = "QLineEdit { color: #010203; }";

// A window with a page that is seen, and behind it a hidden page and a window of its own.
struct Family {
  Family() {
    page->hide();
    field = new QLineEdit(page);
    new QLineEdit(dialog);
  }

  [[nodiscard]] bool isPolished(const QWidget& widget) const {
    return widget.testAttribute(Qt::WA_WState_Polished);
  }

  QWidget window;
  QLineEdit* seen = new QLineEdit(&window);
  QWidget* page = new QWidget(&window);
  QDialog* dialog = new QDialog(&window, Qt::Tool | Qt::FramelessWindowHint);
  QLineEdit* field = nullptr;
};

TEST(WidgetsApart, KeepsWidgetsFromBeingPolishedWithTheirWindow) {
  Family family;
  {
    const WidgetsApart apart(family.window, {family.page, family.dialog});
    family.window.show();
    family.window.setStyleSheet(QLatin1String(kSheet));
  }
  QCoreApplication::sendPostedEvents();
  EXPECT_TRUE(family.isPolished(family.window));
  EXPECT_FALSE(family.isPolished(*family.page));
  EXPECT_FALSE(family.isPolished(*family.field));
  EXPECT_FALSE(family.isPolished(*family.dialog));
}

TEST(WidgetsApart, PutsThemBackAsTheyWere) {
  Family family;
  const QObjectList before = family.window.children();
  const Qt::WindowFlags flags = family.dialog->windowFlags();
  { const WidgetsApart apart(family.window, {family.page, family.dialog}); }
  EXPECT_EQ(family.window.children(), before);
  EXPECT_TRUE(family.page->isHidden() && !family.page->isWindow());
  EXPECT_TRUE(family.dialog->isHidden() && family.dialog->isWindow());
  EXPECT_EQ(family.dialog->windowFlags(), flags);
}

TEST(WidgetsApart, GivesThemTheStyleSheetWhenTheyAreShown) {
  Family family;
  {
    const WidgetsApart apart(family.window, {family.page, family.dialog});
    family.window.show();
    family.window.setStyleSheet(QLatin1String(kSheet));
  }
  family.page->show();
  EXPECT_EQ(family.field->palette().color(QPalette::Text), QColor(1, 2, 3));
  family.dialog->show();
  EXPECT_EQ(family.dialog->findChild<QLineEdit*>()->palette().color(QPalette::Text),
            QColor(1, 2, 3));
}

}  // namespace
}  // namespace brennet
