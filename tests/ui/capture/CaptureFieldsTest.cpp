// Real key events on real fields.

#include "ui/capture/CaptureFields.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QWidget>

#include <memory>

#include "tests/ui/UiTest.h"
#include "ui/capture/EditControl.h"
#include "ui/capture/RefusalText.h"
#include "ui/capture/SlotCapture.h"

namespace brennet {
namespace {

std::optional<KeySlot> basicSlot(std::u16string_view name) {
  return slotOfField(name, BasicPage::Current);
}

class Page : public QWidget {
 public:
  Page() {
    for (const char* const name : {"edtSkill_1", "edtSkill_2", "edtUnknown", "edtText", "other"}) {
      auto* const field = new QLineEdit(this);
      field->setObjectName(QLatin1String(name));
    }
    fields_.install(*this, *this);
  }

  QLineEdit& field(const char* name) { return *findChild<QLineEdit*>(QLatin1String(name)); }

  void refresh() { fields_.refresh(); }

  HotkeyConfig config;
  int told = 0;
  QString why;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return fields_.filter(watched, event) || QWidget::eventFilter(watched, event);
  }

 private:
  CaptureFields fields_{
      {.style = {.beforeName = u" "},
       .captures = [](const QLineEdit& field) { return field.objectName() != u"edtText"; },
       .slotOf = basicSlot,
       .tellUsed =
           [this](const QString& text) {
             ++told;
             why = text;
           }},
      config};
};

// A letter key, with the code that Windows would send: the letter's own.
void press(QLineEdit& field, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
           bool repeat = false) {
  const auto code = static_cast<quint32>(key == Qt::Key_Control ? 0x11 : key);
  QKeyEvent event(QEvent::KeyPress, key, modifiers, 0, code, 0, QStringLiteral("x"), repeat);
  QApplication::sendEvent(&field, &event);
}
void release(QLineEdit& field, Qt::Key key) {
  QKeyEvent event(QEvent::KeyRelease, key, Qt::NoModifier, 0, static_cast<quint32>(key), 0);
  QApplication::sendEvent(&field, &event);
}

TEST(CaptureFields, ShowAndStoreAKey) {
  Page page;
  press(page.field("edtSkill_1"), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(page.field("edtSkill_1").text(), QStringLiteral("CTRL + Q"));
  EXPECT_EQ(page.config.scheme().HeroSkillKey[0], KeyWord('Q', KeyWord::kCtrl));
  EXPECT_EQ(page.told, 0);
}

TEST(CaptureFields, TellOfAUsedKeyOnce) {
  Page page;
  press(page.field("edtSkill_1"), Qt::Key_Q);
  page.field("edtSkill_2").setText(QStringLiteral("old"));
  press(page.field("edtSkill_2"), Qt::Key_Q);
  press(page.field("edtSkill_2"), Qt::Key_Q, Qt::NoModifier, true);
  EXPECT_EQ(page.field("edtSkill_2").text(), QString());
  EXPECT_EQ(page.config.scheme().HeroSkillKey[1], kNoKey);
  EXPECT_EQ(page.told, 1);
}

// Whether the style sheet outlines the field.
bool isOutlined(const QLineEdit& field) {
  return field.property("holdsKey").toBool();
}

TEST(CaptureFields, OutlineTheHolderUntilTheNextPress) {
  Page page;
  QLineEdit& holder = page.field("edtSkill_1");
  QLineEdit& other = page.field("edtSkill_2");
  press(holder, Qt::Key_Q);
  press(other, Qt::Key_Q);
  EXPECT_TRUE(isOutlined(holder));
  EXPECT_FALSE(isOutlined(other));
  EXPECT_TRUE(page.why.contains(QLatin1String("Q"))) << qPrintable(page.why);
  release(other, Qt::Key_Q);
  EXPECT_TRUE(isOutlined(holder)) << "a release is no press";
  press(other, Qt::Key_W);
  EXPECT_FALSE(isOutlined(holder));

  press(other, Qt::Key_Q);
  EXPECT_TRUE(isOutlined(holder));
  page.refresh();
  EXPECT_FALSE(isOutlined(holder));
}

TEST(CaptureFields, TellWhatTheirKeyDoesInAToolTip) {
  Page page;
  page.show();
  EXPECT_EQ(test::toolTipOf(page.field("edtText")), QString());
  EXPECT_EQ(test::toolTipOf(page.field("edtUnknown")), QString());
  QLineEdit& field = page.field("edtSkill_2");
  const KeySlot slot{SettingId::HeroSkillKey, 1};
  EXPECT_EQ(test::toolTipOf(field), fieldText(page.config.scheme(), slot));
  press(field, Qt::Key_Q);
  page.config.editableScheme()->MouseKey[0] = KeyWord('Q', 0);
  EXPECT_EQ(test::toolTipOf(field), fieldText(page.config.scheme(), slot));
  EXPECT_TRUE(test::toolTipOf(field).contains(QLatin1Char('\n')));
}

TEST(CaptureFields, ShowAKeyThatTheyDoNotStore) {
  Page page;
  press(page.field("edtUnknown"), Qt::Key_Q);
  EXPECT_EQ(page.field("edtUnknown").text(), QStringLiteral(" Q"));
  press(page.field("edtSkill_1"), Qt::Key_Q);
  EXPECT_EQ(page.told, 0) << "nobody has that key";
}

TEST(CaptureFields, ForgetALoneModifierOnReleaseAndWithTheFocus) {
  Page page;
  QLineEdit& field = page.field("edtSkill_1");
  press(field, Qt::Key_Control);
  EXPECT_EQ(field.text(), QStringLiteral("CTRL +"));
  release(field, Qt::Key_Control);
  EXPECT_EQ(field.text(), QString());

  press(field, Qt::Key_Control);
  QFocusEvent leave(QEvent::FocusOut);
  QApplication::sendEvent(&field, &leave);
  EXPECT_EQ(field.text(), QString());
  EXPECT_EQ(page.config.scheme().HeroSkillKey[0], kNoKey);
}

TEST(CaptureFields, LeaveTextFieldsAlone) {
  Page page;
  for (const char* const name : {"edtText", "other"}) {
    press(page.field(name), Qt::Key_Q);
    EXPECT_EQ(page.field(name).text(), QStringLiteral("x")) << name;
  }
}

TEST(CaptureFields, TakeNothingButKeys) {
  Page page;
  QLineEdit& field = page.field("edtSkill_1");
  QMimeData text;
  text.setText(QStringLiteral("dropped"));
  QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&field, &drop);
  field.paste();
  EXPECT_EQ(field.text(), QString());
  const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
  for (const QAction* const action : menu->actions()) {
    EXPECT_NE(action->objectName(), QStringLiteral("edit-paste"));
  }
  EXPECT_FALSE(page.field("edtText").isReadOnly());
}

TEST(CaptureFields, ForgetALoneModifierWhenTheyShowTheScheme) {
  Page page;
  page.config.editableScheme()->HeroSkillKey[0] = KeyWord('Q', 0);
  QLineEdit& field = page.field("edtSkill_1");
  press(field, Qt::Key_Control);
  page.refresh();
  release(field, Qt::Key_Control);
  EXPECT_EQ(field.text(), QStringLiteral("Q"));
}

TEST(CaptureFields, TakeKeysBeforeInputMethodsAndShortcuts) {
  Page page;
  QLineEdit& field = page.field("edtSkill_1");
  EXPECT_FALSE(field.testAttribute(Qt::WA_InputMethodEnabled));
  EXPECT_TRUE(page.field("other").testAttribute(Qt::WA_InputMethodEnabled));
  QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_F4, Qt::AltModifier);
  shortcut.ignore();
  QApplication::sendEvent(&field, &shortcut);
  EXPECT_TRUE(shortcut.isAccepted());
}

}  // namespace
}  // namespace brennet
