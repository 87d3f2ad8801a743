#include "ui/pages/KeyMapWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTreeWidget>

#include "tests/support/TempFolder.h"
#include "tests/ui/SettingsDialogTest.h"
#include "ui/keymap/CKeyMapView.h"
#include "ui/keymap/KeyMapPainter.h"
#include "ui/keymap/SchemeKeyMap.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"
#include "ui/window/Text.h"

namespace brennet::test {
namespace {

QStringList keys(std::initializer_list<const char*> texts) {
  QStringList list;
  for (const char* const text : texts) list += QLatin1String(text);
  return list;
}

QString fileIn(const TempFolder& folder, std::u16string_view name) {
  return toQString((folder.path() / std::filesystem::path(name)).u16string());
}

// The window on a scheme with a hero skill, a remap and what every scheme has.
class KeyMapWindowTest : public testing::Test {
 protected:
  KeyMapWindowTest() {
    HotkeyScheme scheme;
    scheme.HeroSkillKey[8] = KeyWord('Q', KeyWord::kAlt);
    scheme.HotKey[0] = KeyRemap(KeyWord('Z', 0), KeyWord('B', 0));
    map = keyMapOf(scheme);
    window.setMap(map, false);
    window.show();
    QApplication::setActiveWindow(&window);
  }

  template <class Widget>
  Widget& find(const char* name) {
    return *window.findChild<Widget*>(QLatin1String(name));
  }
  QTreeWidget& list() { return find<QTreeWidget>("lstKeys"); }
  CKeyMapView& view() { return find<CKeyMapView>("view"); }
  QString story() { return find<QLabel>("lblStory").toolTip(); }
  QStringList shownKeys() {
    QStringList texts;
    for (int row = 0; row < list().topLevelItemCount(); ++row) {
      const QTreeWidgetItem& item = *list().topLevelItem(row);
      if (!item.isHidden()) texts += item.text(0);
    }
    return texts;
  }

  KeyMap map;
  KeyMapWindow window{nullptr};
};

TEST_F(KeyMapWindowTest, ListsEachUse) {
  EXPECT_EQ(list().topLevelItemCount(), static_cast<int>(map.size()));
  EXPECT_EQ(shownKeys().mid(8), (keys({"Alt + Q", "Z", "B"})))
      << "by the rows of the keyboard, F keys first";
  find<QComboBox>("cmbSort").setCurrentIndex(1);
  EXPECT_EQ(shownKeys().mid(0, 3), (keys({"Alt + Q", "Z", "B"}))) << "by place";
}

TEST_F(KeyMapWindowTest, FindsKeysAndWhatTheyDo) {
  auto& search = find<QLineEdit>("txtSearch");
  search.setText(QStringLiteral("alt+q"));
  EXPECT_EQ(shownKeys(), keys({"Alt + Q"}));
  search.setText(map[0].what.toUpper());
  EXPECT_EQ(shownKeys(), keys({"Alt + Q"}));
  search.setText(QStringLiteral("?"));
  EXPECT_TRUE(shownKeys().isEmpty());
  search.setText(map[2].where);
  find<QComboBox>("cmbSort").setCurrentIndex(1);
  EXPECT_EQ(shownKeys(), (keys({"Alt + Q", "Z", "B"}))) << "another order keeps the search";
  window.setMap(map, false);
  EXPECT_EQ(shownKeys().size(), static_cast<int>(map.size()));
}

TEST_F(KeyMapWindowTest, TellsWhatAPressDoes) {
  EXPECT_TRUE(view().hasFocus());
  pressKey(view(), Qt::Key_Z);
  EXPECT_EQ(story(), pressStory(map, {'Z', 0}));
  EXPECT_EQ(view().accessibleDescription(), story());
  pressKey(view(), Qt::Key_Escape);
  EXPECT_EQ(story(), pressStory(map, {0x1B, 0}));
  EXPECT_TRUE(window.isVisible()) << "Escape is a key here";
  EXPECT_FALSE(window.chosen());
}

TEST_F(KeyMapWindowTest, KeepsItsSizeWhateverItTells) {
  const QSize size = window.size();
  KeyMap many = map;
  for (int i = 0; i < 20; ++i) {
    many.push_back(map[0]);
    many.back().what = QString(300, QLatin1Char('W'));
  }
  window.setMap(many, false);
  pressKey(view(), Qt::Key_Q, Qt::AltModifier);
  QCoreApplication::processEvents();
  EXPECT_EQ(window.size(), size);
  EXPECT_EQ(story(), pressStory(many, {'Q', KeyWord::kAlt}));
}

TEST_F(KeyMapWindowTest, ShowsTheLayerThatIsChosenOrHeld) {
  find<QRadioButton>("optAlt").click();
  QTest::mouseClick(&view(), Qt::LeftButton, {}, view().placeOf('G').center());
  EXPECT_EQ(story(), pressStory(map, {'G', KeyWord::kAlt})) << "a free key is told of";
  EXPECT_TRUE(window.isVisible());
  pressKey(view(), Qt::Key_Control);
  EXPECT_TRUE(find<QRadioButton>("optCtrl").isChecked());
  releaseKey(view(), Qt::Key_Control);
  EXPECT_TRUE(find<QRadioButton>("optAlt").isChecked());
}

TEST_F(KeyMapWindowTest, LeadsToAUsedKey) {
  find<QRadioButton>("optAlt").click();
  QTest::mouseClick(&view(), Qt::LeftButton, {}, view().placeOf('Q').center());
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(window.result(), QDialog::Accepted);
  EXPECT_EQ(window.chosen(), MapTarget(KeySlot{SettingId::HeroSkillKey, 8}));
  window.setMap(map, false);
  EXPECT_FALSE(window.chosen());
}

TEST_F(KeyMapWindowTest, LeadsToARow) {
  find<QComboBox>("cmbSort").setCurrentIndex(1);
  list().setFocus();
  list().setCurrentItem(list().topLevelItem(2));
  EXPECT_EQ(story(), pressStory(map, {'B', 0})) << "a row that is looked at is told of";
  EXPECT_TRUE(window.isVisible());
  QTest::keyClick(&list(), Qt::Key_Return);
  EXPECT_EQ(window.chosen(), MapTarget(remapDestination(0)));
  EXPECT_FALSE(window.isVisible());
}

TEST_F(KeyMapWindowTest, ShowsTheLayerOfARow) {
  find<QComboBox>("cmbSort").setCurrentIndex(1);
  list().setCurrentItem(list().topLevelItem(0));
  EXPECT_TRUE(find<QRadioButton>("optAlt").isChecked());
}

TEST_F(KeyMapWindowTest, IsClosedWithoutAChoice) {
  find<QPushButton>("btnClose").click();
  EXPECT_EQ(window.result(), QDialog::Rejected);
  EXPECT_FALSE(window.chosen());
}

TEST_F(KeyMapWindowTest, CopiesAPicture) {
  find<QPushButton>("btnCopyPicture").click();
  const QImage picture = QGuiApplication::clipboard()->image();
  EXPECT_EQ(picture.convertToFormat(QImage::Format_RGB32), mapPicture(map, false));
}

TEST_F(KeyMapWindowTest, SavesAPicture) {
  const TempFolder folder;
  const QString file = fileIn(folder, u"\u952E.png");
  EXPECT_EQ(window.savePicture(file), QString());
  EXPECT_EQ(QImage(file).convertToFormat(QImage::Format_RGB32), mapPicture(map, false));
  EXPECT_EQ(window.savePicture(file), QString()) << "and replaces it";
}

TEST_F(KeyMapWindowTest, TellsWhyAPictureCouldNotBeSaved) {
  const TempFolder folder;
  EXPECT_FALSE(window.savePicture(fileIn(folder, u"none/map.png")).isEmpty());
}

// The window opened from the dialog.
class KeyMapWindowInDialogTest : public SettingsDialog {
 protected:
  // Opens it, and chooses the use that has this key.
  void choose(MapPress press) {
    QTimer::singleShot(0, [press] {
      auto* const window = qobject_cast<KeyMapWindow*>(QApplication::activeModalWidget());
      ASSERT_NE(window, nullptr);
      auto& view = *window->findChild<CKeyMapView*>();
      view.setLayer(layerOf(press));
      QTest::mouseClick(&view, Qt::LeftButton, {}, view.placeOf(press.code).center());
      if (window->isVisible()) window->reject();
    });
    clickLink(find<QLabel>("lblKeyMap"));
  }
  // The object name of what has the keyboard in the window that comes up next.
  void expectFocusIn(QString& name) {
    QTimer::singleShot(0, [&name] {
      // Behind the choice, which is made first.
      QTimer::singleShot(0, [&name] {
        auto* const window = static_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        name = window->focusWidget() == nullptr ? QString() : window->focusWidget()->objectName();
        window->reject();
      });
    });
  }
};

TEST_F(KeyMapWindowInDialogTest, LeadsToAFieldOfThePage) {
  config.editableScheme()->HeroSkillKey[4] = KeyWord('G', KeyWord::kCtrl);
  show();
  choose({'G', KeyWord::kCtrl});
  EXPECT_EQ(dialog->focusWidget(), &skill(5));
  EXPECT_TRUE(skill(5).property("holdsKey").toBool()) << "it is outlined";
  choose({'H', KeyWord::kCtrl});
  EXPECT_TRUE(skill(5).property("holdsKey").toBool()) << "a free key leads nowhere";
}

TEST_F(KeyMapWindowInDialogTest, LeadsToTheFieldOfACombinationThatIsSeen) {
  config.editableScheme()->ComboKey.Key_A = KeyWord('G', 0);
  show();
  choose({'G', 0});
  EXPECT_EQ(dialog->focusWidget()->objectName(), QStringLiteral("edt_skillex_GROUP_2_L_1"));
}

TEST_F(KeyMapWindowInDialogTest, LeadsToAPreset) {
  config.editableScheme()->NumComboKeyIndex = 1;
  show();
  choose({'Q', KeyWord::kAlt});
  EXPECT_EQ(dialog->focusWidget()->objectName(), QStringLiteral("chkGroupKey2"));
}

TEST_F(KeyMapWindowInDialogTest, LeadsToTheOrreryWindow) {
  config.editableScheme()->SecretaryKey[1] = KeyWord('G', 0);
  show();
  choose({'G', 0});
  COrrerySettingDlg* orrery = nullptr;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (orrery == nullptr) orrery = qobject_cast<COrrerySettingDlg*>(window);
  }
  ASSERT_NE(orrery, nullptr);
  EXPECT_TRUE(orrery->isVisible());
  EXPECT_EQ(orrery->focusWidget()->objectName(), QStringLiteral("edtShowHideLedgerData"));
  choose({'G', 0});
  EXPECT_TRUE(orrery->isVisible()) << "it stays open";
}

TEST_F(KeyMapWindowInDialogTest, LeadsToAPhrase) {
  show();
  QString name;
  expectFocusIn(name);
  choose({0x72, KeyWord::kAlt});
  EXPECT_EQ(name, QStringLiteral("chatLineEdit_3"));
}

TEST_F(KeyMapWindowInDialogTest, LeadsToTheFieldsOfDota7) {
  ASSERT_TRUE(settings.storeKey(field(u"edt_HStopKey"), {'G', Dota7Key::kNoModifier}));
  ASSERT_TRUE(settings.storeKey(dota7ChatKeys()[2], {'H', Dota7Key::kNoModifier}));
  show();
  dialog->onSwitchDota7KeySettingDlg();
  choose({'G', 0});
  EXPECT_EQ(dialog->focusWidget(), &stopKey());
  QString name;
  expectFocusIn(name);
  choose({'H', 0});
  EXPECT_EQ(name, toQString(dota7ChatKeys()[2].objectName));
}

// Nothing could be set where its keys would lead.
TEST_F(KeyMapWindowInDialogTest, IsEmptyWithoutASettingGroup) {
  config.setIndex(HotkeyConfig::kSchemes);
  show();
  int rows = -1;
  QTimer::singleShot(0, [&rows] {
    auto* const window = qobject_cast<KeyMapWindow*>(QApplication::activeModalWidget());
    ASSERT_NE(window, nullptr);
    rows = window->findChild<QTreeWidget*>()->topLevelItemCount();
    window->reject();
  });
  clickLink(find<QLabel>("lblKeyMap"));
  EXPECT_EQ(rows, 0);
}

TEST_F(KeyMapWindowInDialogTest, IsNotMadeBeforeItIsOpened) {
  show();
  EXPECT_EQ(dialog->findChild<KeyMapWindow*>(), nullptr);
  QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
  QTest::keyClick(&find<QLabel>("lblKeyMap"), Qt::Key_Space);
  EXPECT_NE(dialog->findChild<KeyMapWindow*>(), nullptr) << "a link is clicked by Space too";
}

}  // namespace
}  // namespace brennet::test
