#include "ui/pages/COrrerySettingDlg.h"

#include "ui/capture/TabOrder.h"
#include "ui/window/EventGuard.h"
#include "ui/window/ScreenFit.h"
#include "ui/window/StyleSheet.h"
#include "ui/window/WindowDrag.h"
#include "ui_COrrerySettingDlg.h"

COrrerySettingDlg::COrrerySettingDlg(QWidget* parent)
    : QDialog(parent), form_(std::make_unique<Ui::COrrerySettingDlg>()) {
  brennet::EventGuard::guardToo(*this);
  fit_ = new brennet::ScreenFit(*this);
  form_->setupUi(this);
  brennet::setTabOrderOfLayouts(*this);
  setWindowFlag(Qt::FramelessWindowHint);
  setAttribute(Qt::WA_StyledBackground);  // the skin's border, not only its colour
  connect(form_->chkShowFriendsMana, &QCheckBox::toggled, this,
          &COrrerySettingDlg::chkShowFriendsMana);
  connect(form_->btnClose, &QPushButton::clicked, this, &COrrerySettingDlg::accept);
}

COrrerySettingDlg::~COrrerySettingDlg() = default;

QCheckBox& COrrerySettingDlg::manaBox() const {
  return *form_->chkShowFriendsMana;
}

void COrrerySettingDlg::setEditable(bool isEditable) {
  for (QLineEdit* const field : findChildren<QLineEdit*>()) field->setEnabled(isEditable);
  manaBox().setEnabled(isEditable);
}

void COrrerySettingDlg::mousePressEvent(QMouseEvent* event) {
  if (!brennet::startDrag({.window = *this}, *event)) QDialog::mousePressEvent(event);
}

bool COrrerySettingDlg::nativeEvent(const QByteArray& eventType, void* message, long* result) {
  return brennet::answerHitTest({.window = *this}, eventType, message, result) ||
         QDialog::nativeEvent(eventType, message, result);
}

void COrrerySettingDlg::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // Most players never open it. Without its skin the window is plain, but just as usable.
  if (styleSheet().isEmpty()) {
    brennet::loadStyleSheet(*this, QStringLiteral(":/skin/war3key.qss"));
  }
  fit_->comeUp(*event);
}
