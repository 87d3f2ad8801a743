#include "ui/pages/Dota7ChatKeySettingWidget.h"

#include <QLabel>
#include <QLineEdit>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "ui/capture/Dota7FieldText.h"
#include "ui/capture/KeyMessages.h"
#include "ui/capture/TabOrder.h"
#include "ui/chat/PhraseMenu.h"
#include "ui/history/Dota7Marks.h"
#include "ui/pages/Form.h"
#include "ui/pages/KeyRows.h"
#include "ui/window/Text.h"
#include "ui_Dota7ChatKeySettingWidget.h"

namespace {

// Wide enough to read a phrase of some length; longer ones are scrolled.
constexpr int kShownCharacters = 20;
constexpr char16_t kWideCharacter = u'\u4E2D';

QLabel* newLabel(const QString& objectName, int number, QLineEdit* field) {
  auto* const label = new QLabel(QString::number(number));
  label->setObjectName(objectName);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setBuddy(field);
  return label;
}

QLineEdit* newPhraseField(const brennet::Dota7Phrase& row) {
  auto* const field = new QLineEdit;
  field->setObjectName(brennet::toQString(row.objectName));
  field->setAccessibleName(brennet::dota7PhraseText(row));
  const QString shown(kShownCharacters, QChar(kWideCharacter));
  brennet::offerPhraseMenu(*field);
  field->setMinimumWidth(field->fontMetrics().horizontalAdvance(shown));
  return field;
}

}  // namespace

Dota7ChatKeySettingWidget::Dota7ChatKeySettingWidget(brennet::Dota7KeyInfoManager& manager,
                                                     QWidget* parent, brennet::HotkeyConfig* config)
    : MovableDialog(parent),
      manager_(manager),
      form_(brennet::formOn<Ui::Dota7ChatKeySettingWidget>(*this)),
      keys_(manager, config, [this](const QString& why) { brennet::tellKeyIsUsed(this, why); }) {
  buildRows();
  connect(form_->btnCancel, &QPushButton::clicked, this,
          &Dota7ChatKeySettingWidget::onClickedCancelBtn);
  connect(form_->btnOK, &QPushButton::clicked, this, &Dota7ChatKeySettingWidget::onClickedOkBtn);
  setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint);
  keys_.install(*this, *this);
  Dota7ChatKeySettingWidget::showSettings();
}

Dota7ChatKeySettingWidget::~Dota7ChatKeySettingWidget() = default;

void Dota7ChatKeySettingWidget::buildRows() {
  for (std::size_t i = 0; i < brennet::kDota7ChatKeys; ++i) {
    const int row = static_cast<int>(i);
    const int number = row + 1;
    const auto& quickRow = brennet::dota7QuickChatPhrases()[i];
    const auto& startRow = brennet::dota7StartPhrases()[i];
    auto* const phrase = newPhraseField(quickRow);
    const brennet::Dota7KeyField& keyRow = brennet::dota7ChatKeys()[i];
    auto* const key = brennet::newKeyField(brennet::toQString(keyRow.objectName),
                                           brennet::dota7FieldText(keyRow));
    auto& quick = *form_->layQuickChat;
    quick.addWidget(newLabel(QStringLiteral("label_QuickChat%1").arg(row), number, phrase), row, 0);
    quick.addWidget(phrase, row, 1);
    quick.addWidget(key, row, 2);

    auto* const start = newPhraseField(startRow);
    auto& atStart = *form_->layOnStart;
    atStart.addWidget(newLabel(QStringLiteral("label_SOnStartString%1").arg(row), number, start),
                      row, 0);
    atStart.addWidget(start, row, 1);
  }
  brennet::setTabOrderOfLayouts(*this);
}

void Dota7ChatKeySettingWidget::showSettings() {
  manager_.settings().loadPhrases();
  for (const brennet::Dota7Phrase& row : brennet::dota7Phrases()) {
    findChild<QLineEdit*>(brennet::toQString(row.objectName))
        ->setText(brennet::toQString(manager_.settings().phrase(row)));
  }
  keys_.refresh();
}

void Dota7ChatKeySettingWidget::mark(const brennet::Dota7Marks& marks) {
  marks.addKeys(keys_);
  for (const brennet::Dota7Phrase& row : brennet::dota7Phrases()) {
    marks.add(*findChild<QLineEdit*>(brennet::toQString(row.objectName)), row);
  }
}

void Dota7ChatKeySettingWidget::savePhrases() {
  for (const brennet::Dota7Phrase& row : brennet::dota7Phrases()) {
    const auto* const field = findChild<QLineEdit*>(brennet::toQString(row.objectName));
    const QString text = field->text();
    manager_.settings().setPhrase(row, brennet::viewOf(text), field->isModified());
  }
}

void Dota7ChatKeySettingWidget::onClickedOkBtn() {
  accept();
}

void Dota7ChatKeySettingWidget::onClickedCancelBtn() {
  reject();
}

bool Dota7ChatKeySettingWidget::eventFilter(QObject* watched, QEvent* event) {
  return keys_.filter(watched, event) || MovableDialog::eventFilter(watched, event);
}
