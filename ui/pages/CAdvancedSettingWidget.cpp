#include "ui/pages/CAdvancedSettingWidget.h"

#include <QDebug>
#include <QScopedValueRollback>

#include <cstdint>

#include "ui/capture/FeatureKeys.h"
#include "ui/capture/KeyMessages.h"
#include "ui/chat/CCustomMsgTableModel.h"
#include "ui/pages/Form.h"
#include "ui/window/Text.h"
#include "ui_CAdvancedSettingWidget.h"

namespace {

constexpr int kLabelColumn = 0;
constexpr int kPhraseColumn = 1;
constexpr int kPhraseWidth = 410;

constexpr std::uint8_t kPrintScreen = 0x2C;
constexpr int kKeyColumns[] = {1, 3};

// A field is wide enough for the longest key text and its frame.
int keyFieldWidth(const QFontMetrics& metrics) {
  constexpr brennet::KeyWord longest(kPrintScreen,
                                     brennet::KeyWord::kCtrl | brennet::KeyWord::kAlt);
  return metrics.horizontalAdvance(brennet::keyText(longest) + QStringLiteral("MM"));
}

std::unique_ptr<Ui::CAdvancedSettingWidget> makeForm(QWidget& page) {
  auto form = brennet::formOn<Ui::CAdvancedSettingWidget>(page);
  const int width = keyFieldWidth(page.fontMetrics());
  for (const int column : kKeyColumns) form->hotkeyLayout->setColumnMinimumWidth(column, width);
  return form;
}

}  // namespace

CAdvancedSettingWidget::CAdvancedSettingWidget(brennet::HotkeyConfig& config, QWidget* parent)
    : QWidget(parent),
      config_(config),
      form_(makeForm(*this)),
      phrases_(new CCustomMsgTableModel(this)),
      presets_({form_->chkGroupKey1, form_->chkGroupKey2, form_->chkGroupKey3}, config),
      chatKeys_({form_->optChatKey_1, form_->optChatKey_2}, config),
      keys_({.style = {},
             .slotOf = brennet::featureKeyOf,
             .tellUsed = [this](const QString& why) { brennet::tellKeyIsUsed(this, why); }},
            config) {
  buildTable();
  keys_.install(*this, *this);
  CAdvancedSettingWidget::showSettings();
  connectControls();
}

CAdvancedSettingWidget::~CAdvancedSettingWidget() = default;

void CAdvancedSettingWidget::buildTable() {
  phrases_->insertRows(0, brennet::kPhrases);
  for (int row = 0; row < brennet::kPhrases; ++row) {
    phrases_->setData(phrases_->index(row, kLabelColumn), tr("message %1:").arg(row + 1),
                      Qt::EditRole);
  }
  QTableView& table = *form_->tableStatement;
  table.setModel(phrases_);
  table.horizontalHeader()->setSectionResizeMode(kLabelColumn, QHeaderView::ResizeToContents);
  table.setColumnWidth(kPhraseColumn, kPhraseWidth);
  // A phrase that is too long for one line wraps.
  table.verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  // On a small screen half of the height is enough: the table scrolls.
  table.setMinimumHeight(table.sizeHint().height() / 2);
}

void CAdvancedSettingWidget::connectControls() {
  using This = CAdvancedSettingWidget;
  connect(form_->chkGroupKey1, &QCheckBox::toggled, this, &This::onToggled_GroupKey1);
  connect(form_->chkGroupKey2, &QCheckBox::toggled, this, &This::onToggled_GroupKey2);
  connect(form_->chkGroupKey3, &QCheckBox::toggled, this, &This::onToggled_GroupKey3);
  connect(form_->optChatKey_1, &QRadioButton::toggled, this, &This::onToggled_ChatKey_1);
  connect(form_->optChatKey_2, &QRadioButton::toggled, this, &This::onToggled_ChatKey_2);
  connect(phrases_, &CCustomMsgTableModel::dataChanged, this, &This::onDataChanged_Table);
}

void CAdvancedSettingWidget::showSettings() {
  presets_.refresh();
  chatKeys_.refresh();
  keys_.refresh();
  refreshPhrases();
}

// The table has to be told of the texts, so the signal cannot be blocked.
void CAdvancedSettingWidget::refreshPhrases() {
  const QScopedValueRollback<bool> filling(isFillingTable_, true);
  const brennet::Phrases& phrases = config_.scheme().QuickChat;
  for (int row = 0; row < brennet::kPhrases; ++row) {
    const auto& phrase = phrases[static_cast<std::size_t>(row)];
    if (!phrase) continue;
    phrases_->setData(phrases_->index(row, kPhraseColumn), brennet::toQString(*phrase),
                      Qt::EditRole);
  }
}

void CAdvancedSettingWidget::onToggled_GroupKey1(bool bChecked) {
  keys_.outline(presets_.toggled(0, bChecked));
}

void CAdvancedSettingWidget::onToggled_GroupKey2(bool bChecked) {
  keys_.outline(presets_.toggled(1, bChecked));
}

void CAdvancedSettingWidget::onToggled_GroupKey3(bool bChecked) {
  keys_.outline(presets_.toggled(2, bChecked));
}

void CAdvancedSettingWidget::onToggled_ChatKey_1(bool bChecked) {
  toggleQuickChatKeys(0, bChecked);
}

void CAdvancedSettingWidget::onToggled_ChatKey_2(bool bChecked) {
  toggleQuickChatKeys(1, bChecked);
}

// A refused choice has been undone by then: nobody must follow it.
void CAdvancedSettingWidget::toggleQuickChatKeys(int set, bool isChecked) {
  chatKeys_.toggled(set, isChecked);
  const QRadioButton& button = set == 0 ? *form_->optChatKey_1 : *form_->optChatKey_2;
  if (button.isChecked() == isChecked) followQuickChatKeys_(set, isChecked);
}

void CAdvancedSettingWidget::onDataChanged_Table(const QModelIndex& topLeft,
                                                 const QModelIndex& bottomRight,
                                                 const QVector<int>& /*roles*/) {
  if (isFillingTable_) return;
  qDebug() << "item chagned: " << topLeft;
  const int row = topLeft.row();
  const bool isPhrase = topLeft == bottomRight && topLeft.column() == kPhraseColumn && row >= 0 &&
                        row < brennet::kPhrases;
  brennet::HotkeyScheme* const scheme = config_.editableScheme();
  if (!isPhrase || scheme == nullptr) return;
  const std::u16string text = topLeft.data(Qt::EditRole).toString().toStdU16String();
  scheme->QuickChat[static_cast<std::size_t>(row)] = brennet::cutPhrase(text);
}

bool CAdvancedSettingWidget::eventFilter(QObject* watched, QEvent* event) {
  return keys_.filter(watched, event) || QWidget::eventFilter(watched, event);
}
