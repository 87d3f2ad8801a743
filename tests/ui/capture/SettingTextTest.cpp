// What players read about the values of their settings.

#include "ui/capture/SettingText.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "model/KeySlot.h"

namespace brennet::test {
namespace {

class SettingTextTest : public testing::Test {
 protected:
  SettingTextTest() {
    EXPECT_TRUE(
        english_.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english_);
  }

  static std::string of(const HotkeyScheme& scheme, SettingPart part) {
    return valueText(scheme, part).toStdString();
  }

 private:
  QTranslator english_;
};

TEST_F(SettingTextTest, NamesEachSetting) {
  for (const Setting& row : kSettings) {
    if (row.id == SettingId::ComboKey3to1) continue;
    EXPECT_FALSE(settingText({row.id}).isEmpty())
        << "give setting number " << static_cast<int>(row.id)
        << " a name in ui/capture/SettingText.cpp, or its keys one in SlotText.cpp";
    EXPECT_FALSE(valueText({}, {row.id}).isEmpty());
  }
}

TEST_F(SettingTextTest, NamesWhatThereAreSeveralOf) {
  EXPECT_EQ(settingText({SettingId::HeroSkillKey, 8}).toStdString(), "Hero skill 9");
  EXPECT_EQ(settingText({SettingId::HeroSkillKey, 8, true}).toStdString(),
            "Hero skill 9: quick cast");
  EXPECT_EQ(settingText({SettingId::QuickChat, 7}).toStdString(), "Quick-chat phrase 8");
  EXPECT_EQ(settingText({SettingId::ChatWheel, 0}).toStdString(), "Chat wheel phrase 1");
  EXPECT_EQ(settingText({SettingId::HideUI}).toStdString(), "Hide in-game buttons");
}

TEST_F(SettingTextTest, SaysWhatAValueIs) {
  HotkeyScheme scheme;
  scheme.HeroSkillKey[0] = KeyWord('Q', KeyWord::kAlt);
  scheme.HeroSkillKey[1] = KeyWord(0xFE, 0);  // no key has that code
  scheme.HeroSkillAutocast[0] = true;
  scheme.HideUI = 1;
  scheme.NumComboKeyIndex = 1;
  scheme.QuickChatIndex = 0;
  scheme.QuickChat[0] = u"well\nplayed, and thanks for all of it";
  EXPECT_EQ(of(scheme, {SettingId::HeroSkillKey, 0}), "Alt + Q");
  EXPECT_EQ(of(scheme, {SettingId::HeroSkillKey, 1}), "65024");
  EXPECT_EQ(of(scheme, {SettingId::HeroSkillKey, 2}), "none");
  EXPECT_EQ(of(scheme, {SettingId::HeroSkillKey, 0, true}), "on");
  EXPECT_EQ(of(scheme, {SettingId::HeroSkillKey, 1, true}), "off");
  EXPECT_EQ(of(scheme, {SettingId::HideUI}), "on");
  EXPECT_EQ(of(scheme, {SettingId::ZoomValue}), "100");
  EXPECT_EQ(of(scheme, {SettingId::NumComboKeyIndex}), "Keypad 784512 = Alt+QWASZX");
  EXPECT_EQ(of({}, {SettingId::NumComboKeyIndex}), "none");
  EXPECT_EQ(of(scheme, {SettingId::QuickChatIndex}), "Alt + 1–8");
  EXPECT_EQ(of(scheme, {SettingId::QuickChat, 0}), "“well played, and thanks …”");
  EXPECT_EQ(of(scheme, {SettingId::QuickChat, 1}), "none");
}

}  // namespace
}  // namespace brennet::test
