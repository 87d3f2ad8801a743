#include "ui/pages/ChatKeySettingWidget.h"

#include <iterator>
#include <string_view>

#include "ui/capture/KeyMessages.h"
#include "ui/chat/PhraseMenu.h"
#include "ui/chat/TypedPhrase.h"
#include "ui/history/SchemeMarks.h"
#include "ui/pages/Form.h"
#include "ui/window/Text.h"
#include "ui_ChatKeySettingWidget.h"

namespace {

constexpr int kAltDigits = 0;
constexpr int kAltFunctionKeys = 1;

constexpr int kFieldColumn = 1;
constexpr char16_t kWideCharacter = u'\u4E2D';

std::unique_ptr<Ui::ChatKeySettingWidget> makeForm(QDialog& dialog) {
  auto form = brennet::formOn<Ui::ChatKeySettingWidget>(dialog);
  // Room for the whole of the longest phrase, in any font; two more characters are for the frame.
  const QString longest(static_cast<int>(brennet::kPhraseUnits) + 2, QChar(kWideCharacter));
  form->phraseLayout->setColumnMinimumWidth(kFieldColumn,
                                            dialog.fontMetrics().horizontalAdvance(longest));
  return form;
}

// A phrase found for one field is kept for those after it that find none.
QString shownPhrase(const brennet::HotkeyScheme& scheme, std::size_t number) {
  for (std::size_t n = number + 1; n > 0; --n) {
    if (const auto& phrase = scheme.QuickChat[n - 1]) return brennet::toQString(*phrase);
  }
  return {};
}

}  // namespace

ChatKeySettingWidget::ChatKeySettingWidget(brennet::HotkeyConfig& config, QWidget* parent)
    : MovableDialog(parent),
      config_(config),
      form_(makeForm(*this)),
      keyButtons_({form_->optChatKey_1, form_->optChatKey_2}, config),
      capture_({.style = {},
                .slotOf = [](std::u16string_view) { return std::nullopt; },
                .tellUsed = [this](const QString& why) { brennet::tellKeyIsUsed(this, why); }},
               config) {
  // The labels are mere numbers, which say little to somebody who cannot see the column.
  for (std::size_t n = 0; n < brennet::kPhrases; ++n) {
    field(n).setAccessibleName(tr("喊话 %1").arg(n + 1));
    brennet::offerPhraseMenu(field(n));
  }
  ChatKeySettingWidget::showSettings();
  using This = ChatKeySettingWidget;
  connect(form_->optChatKey_1, &QRadioButton::toggled, this, &This::onToggled_ChatKey_1);
  connect(form_->optChatKey_2, &QRadioButton::toggled, this, &This::onToggled_ChatKey_2);
  connect(form_->btnCancel, &QPushButton::clicked, this, &This::onClickedCancelBtn);
  connect(form_->btnOK, &QPushButton::clicked, this, &This::onClickedOkBtn);
  setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint);
}

ChatKeySettingWidget::~ChatKeySettingWidget() = default;

QLineEdit& ChatKeySettingWidget::field(std::size_t phrase) const {
  QLineEdit* const fields[] = {form_->chatLineEdit_1, form_->chatLineEdit_2, form_->chatLineEdit_3,
                               form_->chatLineEdit_4, form_->chatLineEdit_5, form_->chatLineEdit_6,
                               form_->chatLineEdit_7, form_->chatLineEdit_8};
  return *fields[phrase];
}

void ChatKeySettingWidget::showSettings() {
  keyButtons_.refresh();
  for (std::size_t n = 0; n < brennet::kPhrases; ++n) {
    field(n).setText(shownPhrase(config_.scheme(), n));
  }
}

void ChatKeySettingWidget::mark(const brennet::SchemeMarks& marks) {
  for (std::size_t n = 0; n < brennet::kPhrases; ++n) {
    marks.addText(field(n),
                  [n](const brennet::HotkeyScheme& scheme) { return shownPhrase(scheme, n); });
  }
  QRadioButton* const buttons[] = {form_->optChatKey_1, form_->optChatKey_2};
  for (std::uint32_t set = 0; set < std::size(buttons); ++set) {
    marks.addChoice(*buttons[set], [set](const brennet::HotkeyScheme& scheme) {
      return scheme.QuickChatIndex == set;
    });
  }
}

void ChatKeySettingWidget::clearSettings() {
  form_->optChatKey_2->setChecked(true);
  // The button sends no signal if it was already checked, whatever the scheme has by now.
  config_.SetQuickChatIndex(kAltFunctionKeys);
  brennet::HotkeyScheme* const scheme = config_.editableScheme();
  for (std::size_t n = 0; n < brennet::kPhrases; ++n) {
    if (scheme != nullptr) scheme->QuickChat[n].emplace();
    field(n).clear();
  }
}

void ChatKeySettingWidget::onClickedOkBtn() {
  if (brennet::HotkeyScheme* const scheme = config_.editableScheme()) {
    for (std::size_t n = 0; n < brennet::kPhrases; ++n) {
      scheme->QuickChat[n] = brennet::cutTypedPhrase(field(n).text().toStdU16String());
    }
  }
  accept();
}

void ChatKeySettingWidget::onClickedCancelBtn() {
  reject();
}

void ChatKeySettingWidget::onToggled_ChatKey_1(bool bChecked) {
  keyButtons_.toggled(kAltDigits, bChecked);
}

void ChatKeySettingWidget::onToggled_ChatKey_2(bool bChecked) {
  keyButtons_.toggled(kAltFunctionKeys, bChecked);
}

bool ChatKeySettingWidget::eventFilter(QObject* watched, QEvent* event) {
  return capture_.filter(watched, event) || MovableDialog::eventFilter(watched, event);
}
