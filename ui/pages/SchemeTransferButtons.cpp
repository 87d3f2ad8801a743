#include "ui/pages/SchemeTransferButtons.h"

#include <QComboBox>
#include <QFileInfo>
#include <QPushButton>

#include <utility>

#include "model/SchemeFile.h"
#include "ui/window/CMsgBox.h"
#include "ui/window/FileChoice.h"
#include "ui/window/ModalRun.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

using Outcome = SchemeFileResult::Outcome;

// What a button is called elsewhere: without the dots that say that a window follows.
QString titleOf(const QPushButton& button) {
  QString title = button.text();
  while (title.endsWith(QLatin1Char('.'))) title.chop(1);
  return title;
}

}  // namespace

SchemeTransferButtons::SchemeTransferButtons(HotkeyConfig& config, QWidget& window,
                                             const Controls& controls, Replaced replaced)
    : config_(config), window_(window), controls_(controls), replaced_(std::move(replaced)) {
  connect(&controls_.copyFrom, &QPushButton::clicked, this, [this] { copyFrom(); });
  connect(&controls_.exportFile, &QPushButton::clicked, this, [this] {
    const FileKind kind{QStringLiteral("xml"), tr("改键设置")};
    const QString fileName =
        askForNewFile(window_, titleOf(controls_.exportFile), kind, QStringLiteral("hotkeys.xml"));
    if (!fileName.isEmpty()) exportTo(fileName);
  });
  connect(&controls_.importFile, &QPushButton::clicked, this, [this] {
    const FileKind kind{QStringLiteral("xml"), tr("改键设置")};
    const QString fileName = askForFile(window_, titleOf(controls_.importFile), kind);
    if (!fileName.isEmpty()) importFrom(fileName);
  });
  refresh();
}

void SchemeTransferButtons::refresh() {
  const bool isThere = config_.editableScheme() != nullptr;
  for (QPushButton* const button :
       {&controls_.copyFrom, &controls_.exportFile, &controls_.importFile}) {
    button->setEnabled(isThere);
  }
}

void SchemeTransferButtons::copyFrom() {
  std::vector<SchemeOffer> offers;
  for (int number = 0; number < HotkeyConfig::kSchemes; ++number) {
    if (static_cast<std::uint32_t>(number) == config_.index()) continue;
    offers.push_back(
        {controls_.groups.itemText(number), transferOf(config_.scheme(), config_.scheme(number))});
  }
  offer(titleOf(controls_.copyFrom), std::move(offers));
}

void SchemeTransferButtons::exportTo(const QString& fileName) {
  const QString title = titleOf(controls_.exportFile);
  if (!ownFile_.isEmpty() && QFileInfo(fileName) == QFileInfo(ownFile_)) {
    tell(QMessageBox::Warning, title, tr("这是您正在使用的设置文件，请选择其他文件。"));
    return;
  }
  const SchemeFileResult result =
      writeSchemeFile(viewOf(fileName), config_.scheme(), config_.LastSaveTime());
  if (result.outcome == Outcome::FileError) {
    tell(QMessageBox::Critical, title, tr("文件无法保存。"), result.message);
  } else if (result.outcome == Outcome::Lossy) {
    tell(QMessageBox::Warning, title, tr("文件已保存，但其中一些字符无法写入，已被替换。"));
  }
}

// What is wrong with a file that brings nothing.
QString SchemeTransferButtons::failureText(Outcome outcome) {
  if (outcome == Outcome::Damaged) return tr("文件已损坏，您的设置没有改变。");
  if (outcome == Outcome::Foreign) return tr("这不是改键设置文件，您的设置没有改变。");
  return tr("文件无法读取，您的设置没有改变。");
}

void SchemeTransferButtons::importFrom(const QString& fileName) {
  const QString title = titleOf(controls_.importFile);
  std::vector<SchemeInFile> schemes;
  const SchemeFileResult result = readSchemeFile(viewOf(fileName), schemes);
  if (result.outcome != Outcome::Done) {
    tell(QMessageBox::Critical, title, failureText(result.outcome), result.message);
    return;
  }
  std::vector<SchemeOffer> offers;
  offers.reserve(schemes.size());
  for (const SchemeInFile& scheme : schemes) {
    offers.push_back({controls_.groups.itemText(scheme.number),
                      transferOf(config_.scheme(), scheme.scheme, scheme.report)});
  }
  offer(title, std::move(offers));
}

void SchemeTransferButtons::offer(const QString& title, std::vector<SchemeOffer> offers) {
  SchemeTransferWindow preview(title, config_.scheme(), std::move(offers), &window_);
  if (runWindow(preview) != QDialog::Accepted) return;
  HotkeyScheme* const current = config_.editableScheme();
  if (current == nullptr) return;
  const SchemeOffer& chosen = preview.chosen();
  const QString what = tr("%1：%2").arg(title, chosen.name);
  HotkeyScheme result = chosen.transfer.result;
  *current = std::move(result);
  replaced_(what);
}

void SchemeTransferButtons::tell(QMessageBox::Icon icon, const QString& title, const QString& text,
                                 const std::u16string& detail) {
  CMsgBox::showMessage(&window_, icon, title, text, QMessageBox::Ok, QMessageBox::Ok,
                       toQString(detail));
}

}  // namespace brennet
