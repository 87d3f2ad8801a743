// The menu of fields for phrases: in the skin, in the language of its window, and it does what it
// says. Key fields have none.

#include "ui/chat/PhraseMenu.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTranslator>

#include "model/HotkeyConfig.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"
#include "ui/window/StyleSheet.h"

namespace brennet::test {
namespace {

// The menu that comes up when a field is asked for one; null if none does.
QPointer<QMenu> menuOf(QLineEdit& field) {
  QContextMenuEvent request(QContextMenuEvent::Mouse, field.rect().center(),
                            field.mapToGlobal(field.rect().center()));
  QCoreApplication::sendEvent(&field, &request);
  return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QAction* entry(const QMenu& menu, const char* text) {
  for (QAction* const action : menu.actions()) {
    if (action->text() == QLatin1String(text)) return action;
  }
  ADD_FAILURE() << text;
  return nullptr;
}

class PhraseMenuTest : public Dota7Test {
 protected:
  PhraseMenuTest() {
    loadStyleSheet(dialog, QStringLiteral(":/skin/war3key.qss"));
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    field.setText(QStringLiteral("gl hf"));
    field.setFocus();
    QApplication::clipboard()->clear();
  }
  ~PhraseMenuTest() override { QApplication::clipboard()->clear(); }

  // Opens a new menu and chooses this entry.
  void choose(const char* text) {
    const QPointer<QMenu> menu = menuOf(field);
    ASSERT_FALSE(menu.isNull());
    entry(*menu, text)->trigger();
    menu->close();
  }

  HotkeyConfig config;
  ChatKeySettingWidget dialog{config, nullptr};
  QLineEdit& field = *dialog.findChild<QLineEdit*>(QStringLiteral("chatLineEdit_1"));
};

TEST_F(PhraseMenuTest, OffersWhatIsPossible) {
  struct Row {
    const char* text;
    bool withSelection;
    bool without;
  };
  const Row kRows[] = {{"&Undo", true, true},     {"&Redo", false, false},  {"Cu&t", true, false},
                       {"&Copy", true, false},    {"&Paste", false, false}, {"Delete", true, false},
                       {"Select All", true, true}};
  QTest::keyClicks(&field, QStringLiteral("!"));
  for (const bool isSelected : {true, false}) {
    if (isSelected) {
      field.selectAll();
    } else {
      field.deselect();
    }
    const QPointer<QMenu> menu = menuOf(field);
    ASSERT_FALSE(menu.isNull());
    for (const Row& row : kRows) {
      EXPECT_EQ(entry(*menu, row.text)->isEnabled(), isSelected ? row.withSelection : row.without)
          << row.text << (isSelected ? " with" : " without") << " a selection";
    }
    menu->close();
  }
}

TEST_F(PhraseMenuTest, DoesWhatItSays) {
  choose("Select All");
  EXPECT_EQ(field.selectedText(), QStringLiteral("gl hf"));
  choose("&Copy");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("gl hf"));
  choose("Cu&t");
  EXPECT_EQ(field.text(), QString());
  choose("&Paste");
  EXPECT_EQ(field.text(), QStringLiteral("gl hf"));
  choose("&Undo");
  EXPECT_EQ(field.text(), QString());
  choose("&Redo");
  EXPECT_EQ(field.text(), QStringLiteral("gl hf"));
  choose("Select All");
  choose("Delete");
  EXPECT_EQ(field.text(), QString());
}

TEST_F(PhraseMenuTest, IsInTheSkin) {
  const QPointer<QMenu> menu = menuOf(field);
  ASSERT_FALSE(menu.isNull());
  const QImage picture = menu->grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(picture.pixel(0, picture.height() / 2), 0xFF6886B4) << "its border";
  EXPECT_EQ(picture.pixel(2, picture.height() / 2), 0xFF2F384E) << "its background";
  menu->close();
}

TEST_F(PhraseMenuTest, IsGoneWhenItIsClosed) {
  const QPointer<QMenu> menu = menuOf(field);
  ASSERT_FALSE(menu.isNull());
  menu->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(menu.isNull());
}

TEST_F(PhraseMenuTest, SpeaksTheLanguageOfItsWindow) {
  QTranslator catalogue;
  ASSERT_TRUE(
      catalogue.load(QStringLiteral("brennet_zh_CN.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
  QCoreApplication::installTranslator(&catalogue);
  const QPointer<QMenu> menu = menuOf(field);
  ASSERT_FALSE(menu.isNull());
  EXPECT_EQ(menu->actions().constFirst()->text(), QStringLiteral(u"撤销(&U)"));
  menu->close();
}

TEST_F(PhraseMenuTest, IsThereForTheKeyboardToo) {
  QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(5, 5));
  QCoreApplication::sendEvent(&field, &request);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  menu->close();
}

TEST_F(PhraseMenuTest, IsForPhrasesAlone) {
  CBasicSetting7Widget basic(config, nullptr);
  Dota7ChatKeySettingWidget dota7Chat(manager, nullptr);
  CChatRouletteSettingWidget wheel(config, nullptr);
  int phrases = 0;
  int keys = 0;
  for (QWidget* const window :
       std::initializer_list<QWidget*>{&basic, &dota7Chat, &wheel, &dialog}) {
    window->show();
    for (QLineEdit* const line : window->findChildren<QLineEdit*>()) {
      const QPointer<QMenu> menu = menuOf(*line);
      const bool isPhrase = !line->isReadOnly();
      EXPECT_EQ(!menu.isNull(), isPhrase) << qPrintable(line->objectName());
      ++(isPhrase ? phrases : keys);
      if (!menu.isNull()) menu->close();
    }
  }
  EXPECT_EQ(phrases, 8 + 30);
  EXPECT_GT(keys, 50);
}

}  // namespace
}  // namespace brennet::test
