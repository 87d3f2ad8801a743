// The controls of the settings dialogs with the skin, without the dialogs.

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "tests/ui/shots/Shots.h"
#include "ui/window/StyleSheet.h"

namespace brennet::shots {
namespace {

QPushButton* makeButton(const char* name, const char* text, bool isChecked) {
  auto* const button = new QPushButton(QLatin1String(text));
  button->setObjectName(QLatin1String(name));
  button->setCheckable(true);
  button->setChecked(isChecked);
  return button;
}

void addButtons(QGridLayout& grid) {
  int row = 0;
  const auto add = [&](const char* name, const char* text = "") {
    grid.addWidget(makeButton(name, text, false), row, 0);
    grid.addWidget(makeButton(name, text, true), row, 1);
    ++row;
  };
  add("btnSwichBasicSetting", "Basic");
  add("btnSwitchPlat", "Another mode");
  add("btnOK", "OK");
  add("btnOrrerySetting");
  add("btnTalkSetting");
  add("btnDota7Setting");
  add("chatHotkeyBtn");
  add("btn_skillcast_1");
  add("btnClose");
}

void addOthers(QGridLayout& grid) {
  auto* const combo = new QComboBox;
  combo->addItem(QStringLiteral("setting group 1"));
  auto* const bar = new QScrollBar(Qt::Horizontal);
  auto* const group = new QGroupBox(QStringLiteral("a group"));
  auto* const inGroup = new QVBoxLayout(group);
  inGroup->addWidget(new QRadioButton(QStringLiteral("one way")));
  inGroup->addWidget(new QLineEdit(QStringLiteral("CTRL +Q")));
  QWidget* const others[] = {new QLabel(QStringLiteral("a label")),
                             new QCheckBox(QStringLiteral("a check box")), combo, bar, group};
  int row = 0;
  for (QWidget* const other : others) grid.addWidget(other, row++, 2);
}

std::unique_ptr<QWidget> makeControls() {
  auto window = std::make_unique<QWidget>();
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(0x1e, 0x24, 0x2f));
  window->setPalette(palette);
  auto* const grid = new QGridLayout(window.get());
  addButtons(*grid);
  addOthers(*grid);
  loadStyleSheet(*window, QStringLiteral(":/skin/war3key.qss"));
  return window;
}

}  // namespace

QList<Shot> controlShots() {
  return {{QStringLiteral("controls"), makeControls}};
}

}  // namespace brennet::shots
