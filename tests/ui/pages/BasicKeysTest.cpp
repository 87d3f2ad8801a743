// Keys that both basic pages and their Orrery window refuse or take.

#include <gtest/gtest.h>

#include <QCheckBox>

#include <memory>

#include "tests/ui/pages/BasicPageTest.h"
#include "tests/ui/pages/ChatPageTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/capture/RefusalText.h"
#include "ui/pages/CBasicSettingWidget.h"

namespace brennet::test {
namespace {

template <class Page>
class BasicKeysOfBothPages : public testing::Test {
 protected:
  // A page that shows the settings as they are now.
  Page& open() {
    page_ = std::make_unique<Page>(config, nullptr);
    return *page_;
  }
  QLineEdit& field(const char* name) { return find<QLineEdit>(*page_, QLatin1String(name)); }

  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();

 private:
  std::unique_ptr<Page> page_;
};
using Pages = testing::Types<CBasicSetting7Widget, CBasicSettingWidget>;
TYPED_TEST_SUITE(BasicKeysOfBothPages, Pages);

// The key is stored where it was pressed, although the field stays empty until the page is opened
// again.
TYPED_TEST(BasicKeysOfBothPages, TakeThePasteKeyFromTheChatWheel) {
  for (const char* const name : {"edtSkill_1", "edtGoodsKey_1", "edtMouseWheelUpKey"}) {
    SCOPED_TRACE(name);
    this->scheme = HotkeyScheme();
    this->scheme.ChatWheelkey = KeyWord('Y', 0);
    auto& page = this->open();
    QLineEdit& field = this->field(name);
    expectWarning(page, "IDS_KEY_USED", [&] { pressKey(field, Qt::Key_V, Qt::ControlModifier); });
    EXPECT_EQ(field.text(), QString());
    EXPECT_EQ(this->scheme.ChatWheelkey, kNoKey);
    this->open();
    EXPECT_EQ(this->field(name).text(), QStringLiteral("CTRL + V"));
  }
}

TYPED_TEST(BasicKeysOfBothPages, TakeAKeyThatAFieldHasAlreadySilently) {
  this->scheme.HeroSkillKey[0] = KeyWord('Q', KeyWord::kAlt);
  const HotkeyScheme before = this->scheme;
  this->open();
  const NoBoxes none;
  for (int round = 0; round < 2; ++round) {
    pressKey(this->field("edtSkill_1"), Qt::Key_Q, Qt::AltModifier);
    EXPECT_EQ(this->field("edtSkill_1").text(), QStringLiteral("Alt + Q"));
    EXPECT_EQ(this->scheme, before);
  }
}

TYPED_TEST(BasicKeysOfBothPages, LeaveSchemesThatTheyCannotEditAlone) {
  for (unsigned index = HotkeyConfig::kSchemes; index <= 10; ++index) {
    SCOPED_TRACE(index);
    ASSERT_TRUE(this->config.setIndex(index));
    auto& page = this->open();
    EXPECT_EQ(this->field("edtSkill_1").text(), QString());
    for (QCheckBox* const box : page.template findChildren<QCheckBox*>()) box->click();
    pressKey(this->field("edtSkill_1"), Qt::Key_Delete);
    expectWarning(page, "IDS_KEY_USED", [&] { pressKey(this->field("edtSkill_1"), Qt::Key_Q); });
    for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
      EXPECT_EQ(this->config.scheme(n), HotkeyScheme()) << n;
    }
  }
}

// The box belongs to the page, which exists even when the Orrery window is not shown.
using BasicKeysTest = BasicPage;

TEST_F(BasicKeysTest, RefusesAUsedKeyInTheOrreryWindow) {
  scheme.HeroSkillKey[0] = KeyWord('Q', 0);
  scheme.SecretaryKey[0] = KeyWord('W', 0);
  page.showSettings();
  auto& ledger = test::find<QLineEdit>(orrery(), QStringLiteral("edtOpenCloseLedger"));
  const QString why = expectWarning(page, "IDS_KEY_USED", [&] { pressKey(ledger, Qt::Key_Q); });
  EXPECT_EQ(why, refusalText(Refusal{KeyWord('Q', 0), holdersOf(scheme, KeyWord('Q', 0))},
                             KeyWindow::Orrery));
  EXPECT_TRUE(
      test::find<QLineEdit>(page, QStringLiteral("edtSkill_1")).property("holdsKey").toBool());
  EXPECT_EQ(ledger.text(), QString());
  EXPECT_EQ(scheme.SecretaryKey[0], kNoKey);
  EXPECT_EQ(scheme.HeroSkillKey[0], KeyWord('Q', 0));
}

TEST_F(BasicKeysTest, TakesThePasteKeyFromTheChatWheelInTheOrreryWindow) {
  scheme.ChatWheelkey = KeyWord('Y', 0);
  auto& ledger = test::find<QLineEdit>(orrery(), QStringLiteral("edtShowHideLedgerData"));
  expectWarning(page, "IDS_KEY_USED", [&] { pressKey(ledger, Qt::Key_V, Qt::ControlModifier); });
  EXPECT_EQ(ledger.text(), QString());
  EXPECT_EQ(scheme.SecretaryKey[1], KeyWord('V', KeyWord::kCtrl));
  EXPECT_EQ(scheme.ChatWheelkey, kNoKey);
}

}  // namespace
}  // namespace brennet::test
