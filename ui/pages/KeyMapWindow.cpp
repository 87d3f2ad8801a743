#include "ui/pages/KeyMapWindow.h"

#include <QClipboard>
#include <QHeaderView>
#include <QRadioButton>
#include <QTreeWidget>

#include <algorithm>
#include <array>
#include <numeric>

#include "ui/keymap/CKeyMapView.h"
#include "ui/keymap/KeyMapPainter.h"
#include "ui/pages/Form.h"
#include "ui/window/CMsgBox.h"
#include "ui/window/FileChoice.h"
#include "ui/window/Text.h"
#include "ui_KeyMapWindow.h"

using brennet::MapPress;
using brennet::MapUse;

namespace {

enum Sorting { kByKey, kByPlace };

constexpr int kStoryLines = 3;          // more can be scrolled to
constexpr int kUseRole = Qt::UserRole;  // of a row: the number of its use

// "Alt+Q" finds "Alt + Q".
QString searchable(const QString& text) {
  return QString(text).remove(QLatin1Char(' ')).toCaseFolded();
}

bool isBefore(const MapUse& a, const MapUse& b) {
  const int orders[] = {brennet::mapOrder(a.press.code), brennet::mapOrder(b.press.code)};
  return orders[0] != orders[1] ? orders[0] < orders[1] : a.press.modifiers < b.press.modifiers;
}

}  // namespace

KeyMapWindow::KeyMapWindow(QWidget* parent)
    : MovableDialog(parent), form_(brennet::formOn<Ui::KeyMapWindow>(*this)) {
  setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint);
  setAttribute(Qt::WA_StyledBackground);  // the skin's border, not only its colour
  form_->cmbSort->addItems({tr("按按键排序"), tr("按位置排序")});
  form_->lstKeys->setHeaderLabels({tr("按键"), tr("作用"), tr("设置于")});
  form_->lstKeys->header()->setStretchLastSection(false);
  form_->lstKeys->header()->setSectionResizeMode(1, QHeaderView::Stretch);
  form_->view->setMap(map_, isDota7_);
  connectForm();
}

KeyMapWindow::~KeyMapWindow() = default;

void KeyMapWindow::connectForm() {
  const std::array<QRadioButton*, 4> layers = {form_->optPlain, form_->optCtrl, form_->optAlt,
                                               form_->optCtrlAlt};
  for (std::size_t i = 0; i < layers.size(); ++i) {
    layers[i]->setText(brennet::layerText(brennet::kMapLayers[i]));
    connect(layers[i], &QRadioButton::clicked, this,
            [this, i] { form_->view->setLayer(brennet::kMapLayers[i]); });
  }
  // A layer that is shown because its keys are held is not chosen when they are released.
  connect(form_->view, &CKeyMapView::layerShown, this, [layers](int layer) {
    for (std::size_t i = 0; i < layers.size(); ++i) {
      if (brennet::kMapLayers[i] == layer) layers[i]->setChecked(true);
    }
  });
  connect(form_->view, &CKeyMapView::pressed, this, [this](int code, int modifiers) {
    showStory({static_cast<brennet::MapCode>(code), static_cast<std::uint8_t>(modifiers)});
  });
  connect(form_->view, &CKeyMapView::clicked, this, [this](int code, int modifiers) {
    clickKey({static_cast<brennet::MapCode>(code), static_cast<std::uint8_t>(modifiers)});
  });
  connect(form_->txtSearch, &QLineEdit::textChanged, this, [this] { filterList(); });
  connect(form_->cmbSort, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          [this] { fillList(); });
  const auto chooseRow = [this](QTreeWidgetItem* item) {
    choose(map_[item->data(0, kUseRole).toUInt()]);
  };
  connect(form_->lstKeys, &QTreeWidget::itemClicked, this, chooseRow);
  connect(form_->lstKeys, &QTreeWidget::itemActivated, this, chooseRow);
  connect(form_->lstKeys, &QTreeWidget::currentItemChanged, this,
          [this](const QTreeWidgetItem* item) { lightRow(item); });
  connect(form_->btnCopyPicture, &QPushButton::clicked, this, [this] { copyPicture(); });
  connect(form_->btnSavePicture, &QPushButton::clicked, this, [this] { askAndSavePicture(); });
  connect(form_->btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

void KeyMapWindow::setMap(brennet::KeyMap map, bool isDota7) {
  map_ = std::move(map);
  isDota7_ = isDota7;
  chosen_.reset();
  form_->view->setMap(map_, isDota7_);
  form_->optPlain->click();
  form_->txtSearch->clear();
  text_ = tr("按任意键或滚动滚轮，即可查看它的作用。Shift+Tab 离开键盘图。");
  showText();
  fillList();
}

void KeyMapWindow::fillList() {
  std::vector<std::size_t> order(map_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  if (form_->cmbSort->currentIndex() == kByKey) {
    std::stable_sort(order.begin(), order.end(),
                     [this](std::size_t a, std::size_t b) { return isBefore(map_[a], map_[b]); });
  }
  form_->lstKeys->clear();
  for (const std::size_t number : order) {
    const MapUse& use = map_[number];
    auto* const item = new QTreeWidgetItem(form_->lstKeys, {use.key, use.what, use.where});
    item->setData(0, kUseRole, static_cast<unsigned>(number));
    for (int column = 0; column < form_->lstKeys->columnCount(); ++column) {
      item->setToolTip(column, item->text(column));
    }
  }
  form_->lstKeys->resizeColumnToContents(0);
  form_->lstKeys->resizeColumnToContents(2);
  filterList();
}

void KeyMapWindow::filterList() {
  const QString sought = searchable(form_->txtSearch->text());
  for (int row = 0; row < form_->lstKeys->topLevelItemCount(); ++row) {
    QTreeWidgetItem* const item = form_->lstKeys->topLevelItem(row);
    bool isFound = false;
    for (int column = 0; column < form_->lstKeys->columnCount(); ++column) {
      isFound = isFound || searchable(item->text(column)).contains(sought);
    }
    item->setHidden(!isFound);
  }
}

// There is always room for the same number of lines, so that nothing moves.
void KeyMapWindow::showText() {
  QStringList lines = text_.split(QLatin1Char('\n')).mid(0, kStoryLines);
  const QFontMetrics metrics(form_->lblStory->font());
  // Letters may stand out of what a font says of their widths.
  const int room = form_->lblStory->width() - metrics.averageCharWidth();
  for (QString& line : lines) line = metrics.elidedText(line, Qt::ElideRight, room);
  while (lines.size() < kStoryLines) lines += QString();
  form_->lblStory->setText(lines.join(QLatin1Char('\n')));
  form_->lblStory->setToolTip(text_);
}

void KeyMapWindow::showStory(MapPress press) {
  text_ = brennet::pressStory(map_, press);
  showText();
  form_->view->setAccessibleDescription(text_);
}

// Closes the window; the dialog leads to the field.
void KeyMapWindow::choose(const MapUse& use) {
  chosen_ = use.target;
  accept();
}

void KeyMapWindow::clickKey(MapPress press) {
  const auto use = std::find_if(map_.begin(), map_.end(),
                                [&](const MapUse& each) { return each.press == press; });
  if (use == map_.end()) {
    showStory(press);
  } else {
    choose(*use);
  }
}

void KeyMapWindow::lightRow(const QTreeWidgetItem* item) {
  if (item == nullptr) return;
  const MapUse& use = map_[item->data(0, kUseRole).toUInt()];
  form_->view->setLayer(brennet::layerOf(use.press));
  form_->view->light(use.press);
  showStory(use.press);
}

void KeyMapWindow::copyPicture() const {
  QGuiApplication::clipboard()->setImage(brennet::mapPicture(map_, isDota7_));
}

QString KeyMapWindow::savePicture(const QString& fileName) const {
  const std::error_code error = brennet::savePicture(brennet::mapPicture(map_, isDota7_), fileName);
  return error ? QString::fromLocal8Bit(error.message().c_str()) : QString();
}

void KeyMapWindow::askAndSavePicture() {
  const QString fileName =
      brennet::askForNewFile(*this, tr("保存图片"), {QStringLiteral("png"), QStringLiteral("PNG")},
                             QStringLiteral("keys.png"));
  if (fileName.isEmpty()) return;
  const QString error = savePicture(fileName);
  if (error.isEmpty()) return;
  CMsgBox::showMessage(this, QMessageBox::Critical, tr("保存图片"),
                       tr("图片无法保存：%1").arg(error), QMessageBox::Ok, QMessageBox::Ok);
}

void KeyMapWindow::resizeEvent(QResizeEvent* event) {
  MovableDialog::resizeEvent(event);
  showText();
}

void KeyMapWindow::showEvent(QShowEvent* event) {
  MovableDialog::showEvent(event);
  form_->view->setFocus();
}
