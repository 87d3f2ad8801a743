#include "ui/pages/SchemeTransferWindow.h"

#include <QHeaderView>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

#include "ui/capture/SettingText.h"
#include "ui/capture/SlotText.h"
#include "ui/pages/Form.h"
#include "ui/window/Text.h"
#include "ui_SchemeTransferWindow.h"

using brennet::TransferRow;

namespace {

enum Column { kSetting, kNow, kThen, kNote };

// Why a value is refused; empty if it is not.
QString refusalOf(const TransferRow& row) {
  if (const auto* const key = std::get_if<brennet::DroppedKey>(&row.refusal)) {
    return brennet::dropReason(*key);
  }
  if (const auto* const choice = std::get_if<brennet::DroppedChoice>(&row.refusal)) {
    return brennet::dropReason(*choice);
  }
  return {};
}

}  // namespace

SchemeTransferWindow::SchemeTransferWindow(const QString& title,
                                           const brennet::HotkeyScheme& current,
                                           std::vector<brennet::SchemeOffer> offers,
                                           QWidget* parent)
    : MovableDialog(parent),
      form_(brennet::formOn<Ui::SchemeTransferWindow>(*this)),
      current_(current),
      offers_(std::move(offers)) {
  setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint);
  setAttribute(Qt::WA_StyledBackground);  // the skin's border, not only its colour
  setWindowTitle(title);
  form_->lblTitle->setText(title);
  form_->lstChanges->setHeaderLabels({tr("设置"), tr("现在"), tr("之后"), tr("说明")});
  form_->lstChanges->header()->setStretchLastSection(false);
  form_->lstChanges->setFocus();
  for (const brennet::SchemeOffer& offer : offers_) form_->cmbSource->addItem(offer.name);
  form_->cmbSource->setEnabled(offers_.size() > 1);
  connect(form_->cmbSource, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          [this] { showOffer(); });
  connect(form_->btnOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(form_->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(form_->btnClose, &QPushButton::clicked, this, &QDialog::reject);
  showOffer();
}

SchemeTransferWindow::~SchemeTransferWindow() = default;

const brennet::SchemeOffer& SchemeTransferWindow::chosen() const {
  return offers_[static_cast<std::size_t>(form_->cmbSource->currentIndex())];
}

// What is refused comes first: the player has to know of it before he agrees.
void SchemeTransferWindow::showOffer() {
  std::vector<TransferRow> rows = chosen().transfer.rows;
  std::stable_partition(rows.begin(), rows.end(),
                        [](const TransferRow& row) { return row.isRefused(); });
  form_->lstChanges->clear();
  for (const TransferRow& row : rows) addRow(row);
  const brennet::HotkeyScheme& result = chosen().transfer.result;
  const auto changes = std::count_if(rows.begin(), rows.end(), [&](const TransferRow& row) {
    return differsIn(row.part, current_, result);
  });
  const auto refused = std::count_if(rows.begin(), rows.end(),
                                     [](const TransferRow& row) { return row.isRefused(); });
  form_->lblSummary->setText(refused == 0
                                 ? tr("更改：%1 项").arg(changes)
                                 : tr("更改：%1 项，无法采用：%2 项").arg(changes).arg(refused));
  form_->lstChanges->setColumnHidden(kNote, refused == 0);
  form_->btnOK->setEnabled(changes != 0);
  if (isVisible()) fitColumns();
}

// By then it has the fonts of the skin.
void SchemeTransferWindow::showEvent(QShowEvent* event) {
  fitColumns();
  MovableDialog::showEvent(event);
}

// Once a list: a header that follows its contents by itself measures them at every step of opening.
void SchemeTransferWindow::fitColumns() {
  for (const int column : {kSetting, kNow, kThen, kNote}) {
    if (!form_->lstChanges->isColumnHidden(column)) {
      form_->lstChanges->resizeColumnToContents(column);
    }
  }
}

// What is refused is told in words and in bold.
void SchemeTransferWindow::addRow(const TransferRow& row) {
  const QString refusal = refusalOf(row);
  const QString note = refusal.isEmpty() ? QString() : tr("无法采用：%1").arg(refusal);
  const brennet::HotkeyScheme& result = chosen().transfer.result;
  const QString now = brennet::valueText(current_, row.part);
  const bool looksTheSame = now == brennet::valueText(result, row.part);
  const auto text = looksTheSame ? brennet::wholeValueText : brennet::valueText;
  auto item = std::make_unique<QTreeWidgetItem>(QStringList{
      brennet::settingText(row.part), text(current_, row.part), text(result, row.part), note});
  QFont font = form_->lstChanges->font();
  font.setBold(row.isRefused());
  for (const int column : {kSetting, kNow, kThen, kNote}) item->setFont(column, font);
  form_->lstChanges->addTopLevelItem(item.release());
}
