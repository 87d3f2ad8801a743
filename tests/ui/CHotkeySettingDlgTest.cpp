#include "tests/ui/SettingsDialogTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>

#include <algorithm>
#include <utility>
#include <vector>

#include "tests/support/TempFolder.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CBasicSettingWidget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/ChatKeySettingWidget.h"

namespace brennet::test {
namespace {

using CHotkeySettingDlgTest = SettingsDialog;

TEST_F(CHotkeySettingDlgTest, HasItsMethodsInTheOrderThatClientsKnow) {
  const QStringList expected = {QStringLiteral("resetSetting"),
                                QStringLiteral("useRecommendedSetting"),
                                QStringLiteral("onSwitchSettingUI"),
                                QStringLiteral("onSwitchBasicSettingUI"),
                                QStringLiteral("onSwitchAdvancedSettingUI"),
                                QStringLiteral("onSwitchChatWheelSettingUI"),
                                QStringLiteral("onClickedOkBtn"),
                                QStringLiteral("onClickedCancelBtn"),
                                QStringLiteral("onToggled_UseHotkeySettings"),
                                QStringLiteral("onResetSetting"),
                                QStringLiteral("onUseRecommendedSetting"),
                                QStringLiteral("onCurrentIndexChanged_HotkeySetting"),
                                QStringLiteral("onShowHotKeySettingDlg"),
                                QStringLiteral("onSwitchPlatKeySettingDlg"),
                                QStringLiteral("onSwitchDota7KeySettingDlg"),
                                QStringLiteral("onShowDota7HotKeySettingDlg")};
  EXPECT_EQ(methodNames(CHotkeySettingDlg::staticMetaObject), expected);
}

// Records which object becomes a child of which, in order.
class Births : public QObject {
 public:
  Births() { qApp->installEventFilter(this); }

  // The classes of all children that this parent has had, even if they have left it since. A child
  // that came back, as windows do when they get new flags, counts once.
  [[nodiscard]] QStringList of(const QObject& parent) const {
    QList<const QObject*> children;
    QStringList classes;
    for (const auto& [object, child] : births_) {
      if (object != &parent || child.isNull() || children.contains(child)) continue;
      children += child;
      classes += QLatin1String(child->metaObject()->className());
    }
    return classes;
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ChildAdded) {
      births_.emplace_back(watched, static_cast<QChildEvent*>(event)->child());
    }
    return false;
  }

 private:
  std::vector<std::pair<QObject*, QPointer<QObject>>> births_;
};

TEST_F(CHotkeySettingDlgTest, HasItsChildrenInTheirOrder) {
  const QStringList expected = {
      QStringLiteral("CAdvancedSettingWidget"),    QStringLiteral("CBasicSettingWidget"),
      QStringLiteral("CBasicSetting7Widget"),      QStringLiteral("CChatRouletteSettingWidget"),
      QStringLiteral("CDotA7BasicSetting"),        QStringLiteral("ChatKeySettingWidget"),
      QStringLiteral("Dota7ChatKeySettingWidget"),
  };
  const Births births;
  const CHotkeySettingDlg another(config, manager);
  QStringList pages = births.of(another);
  pages.erase(std::remove_if(pages.begin(), pages.end(),
                             [](const QString& type) { return type.startsWith(u'Q'); }),
              pages.end());
  EXPECT_EQ(pages, expected) << "hosts know the pages by their order: make a new one last in "
                                "createPages(), and add it here";
}

// Those that are not seen are out of the dialog while it comes up.
TEST_F(CHotkeySettingDlgTest, HasItsUnseenChildrenAgainOnceItIsShown) {
  const auto unseen = [this] {
    QStringList types;
    for (const QObject* const child : dialog->children()) {
      const QString type = QLatin1String(child->metaObject()->className());
      if (type.startsWith(u'C') || type.contains(QLatin1String("Chat"))) types += type;
    }
    return types;
  };
  const QStringList before = unseen();
  ASSERT_EQ(before.size(), 5) << qPrintable(before.join(u' '));
  dialog->show();
  EXPECT_EQ(unseen(), before);
  auto& chat = page<ChatKeySettingWidget>();
  EXPECT_TRUE(chat.isWindow());
  EXPECT_FALSE(page<CAdvancedSettingWidget>().isWindow());
  chat.show();
  EXPECT_EQ(chat.findChild<QLineEdit*>()->palette().color(QPalette::Text), QColor(0xdeebfe))
      << "with the skin";
}

TEST_F(CHotkeySettingDlgTest, HasTwoPagesInItsStack) {
  const auto& stack = *dialog->findChild<QStackedLayout*>();
  ASSERT_EQ(stack.count(), 2);
  EXPECT_EQ(stack.widget(0), &page<CBasicSetting7Widget>());
  EXPECT_EQ(stack.widget(1), &page<CDotA7BasicSetting>());
  dialog->show();
  EXPECT_TRUE(page<CBasicSetting7Widget>().isVisible());
  EXPECT_FALSE(page<CDotA7BasicSetting>().isVisible());
  EXPECT_TRUE(page<CAdvancedSettingWidget>().isHidden());
  EXPECT_TRUE(page<CBasicSettingWidget>().isHidden());
  EXPECT_TRUE(page<CChatRouletteSettingWidget>().isHidden());
}

TEST_F(CHotkeySettingDlgTest, IsAToolWindowWithoutAFrame) {
  QDialog like;
  like.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint);
  EXPECT_EQ(dialog->windowFlags(), like.windowFlags());
  dialog->show();
  EXPECT_EQ(dialog->minimumSize(), dialog->maximumSize()) << "its size is fixed";
}

TEST_F(CHotkeySettingDlgTest, ReadsItsSheetWhenItIsFirstShownOnly) {
  EXPECT_TRUE(dialog->styleSheet().isEmpty());
  dialog->show();
  EXPECT_FALSE(dialog->styleSheet().isEmpty());
  dialog->hide();
  dialog->setStyleSheet(QString());
  dialog->show();
  EXPECT_EQ(dialog->styleSheet(), QString());
}

TEST_F(CHotkeySettingDlgTest, HasItsTexts) {
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral(u"魔兽改键设置"));
  EXPECT_EQ(find<QCheckBox>("chkUseHotkeySettings").text(), QStringLiteral(u"启用改键"));
  EXPECT_EQ(find<QLabel>("lblResetToDefaultSetting").text(), QStringLiteral(u"清空设置"));
  EXPECT_EQ(find<QLabel>("lblUseRecommendedSetting").text(), QStringLiteral(u"推荐方案"));
  EXPECT_EQ(find<QPushButton>("btnSwitchPlat").text(), QStringLiteral(u"切换至普通改键"));
  EXPECT_EQ(find<QPushButton>("btnSwitchDota7").text(), QStringLiteral(u"切换至DotA7.0专用改键"));
  auto& box = find<QComboBox>("cmbHotkeySetting");
  ASSERT_EQ(box.count(), 3);
  EXPECT_EQ(box.itemText(2), QStringLiteral("setting group 3"));
  EXPECT_FALSE(find<QLabel>("lblUseRecommendedSetting").isVisibleTo(dialog.get()));
}

class CHotkeySettingDlgOfANewPlayer : public testing::Test {
 protected:
  CHotkeySettingDlgOfANewPlayer() { dialog.show(); }

  [[nodiscard]] bool isDota7Offered() const {
    const auto& basic = *dialog.findChild<CBasicSetting7Widget*>();
    return basic.findChild<QPushButton*>(QStringLiteral("btnDota7Setting"))->isVisible();
  }

  ScopedRegistry registry;
  TempFolder folder;
  Dota7KeyInfoManager manager;
  HotkeyConfig config;
  CHotkeySettingDlg dialog{config, manager};
};

TEST_F(CHotkeySettingDlgOfANewPlayer, OffersDota7OnlyIfItsKeysCanBeHad) {
  ASSERT_TRUE(isDota7Offered());
  const std::u16string data = folder.path().u16string() + u'/';
  dialog.setDataFolder(data);
  EXPECT_FALSE(isDota7Offered()) << "there is neither the key nor the file";
  registry.createKey(kDota7ControlPath);
  dialog.setDataFolder(data);
  EXPECT_TRUE(isDota7Offered()) << "the key is there";
}

TEST_F(CHotkeySettingDlgTest, ToldOfOneRefusedKeySetOnce) {
  config.editableScheme()->ShowFBlood = KeyWord('3', KeyWord::kAlt);
  auto* const digits = dialog->findChild<QWidget*>(QStringLiteral("CAdvancedSettingWidget"))
                           ->findChild<QRadioButton*>(QStringLiteral("optChatKey_1"));
  int boxes = 0;
  const auto box = whenBoxIsShown([&boxes](QMessageBox& shown) {
    ++boxes;
    shown.accept();
  });
  digits->click();
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(config.scheme().QuickChatIndex, 1U);
}

}  // namespace
}  // namespace brennet::test
