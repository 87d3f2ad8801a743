// The message box with each icon, with one button and with two.

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

#include "tests/ui/shots/Shots.h"
#include "ui/capture/RefusalText.h"
#include "ui/window/CMsgBox.h"

namespace brennet::shots {
namespace {

struct Icon {
  const char* name;
  QMessageBox::Icon icon;
};
constexpr Icon kIcons[] = {{"warning", QMessageBox::Warning},
                           {"critical", QMessageBox::Critical},
                           {"question", QMessageBox::Question},
                           {"plain", QMessageBox::NoIcon}};

// Boxes wrap their texts at half of the screen's width, which is little here, and less at a high
// density. So the text asks for the room that it has on a large screen.
void keepWidth(const CMsgBox& box) {
  constexpr int kTextRoom = 400;
  auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  label->setMinimumWidth(std::min(label->sizeHint().width(), kTextRoom));
}

std::unique_ptr<QWidget> makeBox(QMessageBox::Icon icon, QMessageBox::StandardButtons buttons) {
  const auto text = [](const char* id) { return QCoreApplication::translate("QObject", id); };
  // The second one has several lines.
  const QString key = text("IDS_KEY_USED");
  const QString keys = text("IDS_GROUP_KEY_USED");
  auto box = std::make_unique<CMsgBox>(
      icon, text("IDS_TITLE"), buttons == QMessageBox::Ok ? key : keys + u'\n' + key, buttons);
  box->setButtonTexts();
  box->setDefaultButton(QMessageBox::Ok);
  keepWidth(*box);
  return box;
}

// A box that says below its text what has the keys of a set.
std::unique_ptr<QWidget> makeRefusal() {
  const std::vector<TakenKey> taken = {
      {KeyWord('1', KeyWord::kAlt), {KeyConflict::Reason::Held, {SettingId::HeroSkillKey, 8}}},
      {KeyWord('8', KeyWord::kAlt), {KeyConflict::Reason::Held, {SettingId::SecretaryKey, 2}}},
      {KeyWord('8', KeyWord::kAlt), {KeyConflict::Reason::Held, {SettingId::ChatWheelkey}}},
  };
  auto box = makeBox(QMessageBox::Warning, QMessageBox::Ok);
  static_cast<QMessageBox&>(*box).setInformativeText(refusalText(taken, KeyWindow::QuickChat));
  return box;
}

}  // namespace

QList<Shot> boxShots() {
  QList<Shot> shots;
  for (const Icon& row : kIcons) {
    const QString name = QStringLiteral("box-%1").arg(QLatin1String(row.name));
    shots.append({name, [&row] { return makeBox(row.icon, QMessageBox::Ok); }});
    shots.append({name + QStringLiteral("-cancel"),
                  [&row] { return makeBox(row.icon, QMessageBox::Ok | QMessageBox::Cancel); }});
  }
  shots.append({QStringLiteral("box-refusal"), makeRefusal});
  return shots;
}

}  // namespace brennet::shots
