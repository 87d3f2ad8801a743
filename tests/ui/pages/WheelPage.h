#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

#include <memory>

#include "tests/ui/pages/ChatPageTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/pages/CChatRouletteSettingWidget.h"

namespace brennet::test {

// The chat wheel page on settings of its own, made when it is first asked for.
class WheelPage : public testing::Test {
 protected:
  CChatRouletteSettingWidget& open() {
    page_ = std::make_unique<CChatRouletteSettingWidget>(config, nullptr);
    return *page_;
  }
  CChatRouletteSettingWidget& page() { return page_ ? *page_ : open(); }
  // Opens the page anew on the screen, where its widgets can have the focus.
  void show() {
    page().show();
    QApplication::setActiveWindow(&page());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page()));
  }

  QLineEdit& slot(int n) {
    return find<QLineEdit>(page(), QStringLiteral("edtChatWheel_%1").arg(n));
  }
  QLineEdit& key() { return find<QLineEdit>(page(), QStringLiteral("edtChatWheelKey")); }
  QTreeWidget& tree() { return find<QTreeWidget>(page(), QStringLiteral("ChatPhrases")); }
  QCheckBox& mana() { return find<QCheckBox>(page(), QStringLiteral("chkShowMana")); }

  QTreeWidgetItem& category(int n) { return *tree().topLevelItem(n); }
  QTreeWidgetItem& phrase(int branch, int n) { return *category(branch).child(n); }
  // Clicks as a player does, with the mouse.
  void click(QTreeWidgetItem& item) {
    tree().scrollToItem(&item);
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualItemRect(&item).center());
  }

  HotkeyScheme& scheme() { return *config.editableScheme(); }
  std::u16string stored(int slotNumber) {
    return scheme().ChatWheel[static_cast<std::size_t>(slotNumber - 1)].value_or(u"(none)");
  }

  HotkeyConfig config;

 private:
  std::unique_ptr<CChatRouletteSettingWidget> page_;
};

}  // namespace brennet::test
