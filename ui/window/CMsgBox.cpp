#include "ui/window/CMsgBox.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>

#include <memory>

#include "ui/window/ModalRun.h"
#include "ui/window/ScreenFit.h"
#include "ui/window/StyleSheet.h"
#include "ui/window/WindowDrag.h"

namespace {

constexpr int kCloseButtonSize = 15;
constexpr int kButtonSpace = 51;  // beside the text of a button, both sides together
constexpr int kBorder = 2;        // of the skin

struct ButtonText {
  QMessageBox::StandardButton button;
  const char* text;
};
constexpr ButtonText kButtonTexts[] = {
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("QDialogButtonBox", "OK")},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("QDialogButtonBox", "Cancel")},
    {QMessageBox::Open, QT_TRANSLATE_NOOP("QDialogButtonBox", "Open")},
    {QMessageBox::Save, QT_TRANSLATE_NOOP("QDialogButtonBox", "Save")},
    {QMessageBox::Close, QT_TRANSLATE_NOOP("QDialogButtonBox", "Close")},
    {QMessageBox::Discard, QT_TRANSLATE_NOOP("QDialogButtonBox", "Discard")},
    {QMessageBox::Apply, QT_TRANSLATE_NOOP("QDialogButtonBox", "Apply")},
    {QMessageBox::Reset, QT_TRANSLATE_NOOP("QDialogButtonBox", "Reset")},
    {QMessageBox::RestoreDefaults, QT_TRANSLATE_NOOP("QDialogButtonBox", "RestoreDefaults")},
    {QMessageBox::Help, QT_TRANSLATE_NOOP("QDialogButtonBox", "Help")},
    {QMessageBox::SaveAll, QT_TRANSLATE_NOOP("QDialogButtonBox", "SaveAll")},
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("QDialogButtonBox", "Yes")},
    {QMessageBox::YesToAll, QT_TRANSLATE_NOOP("QDialogButtonBox", "YesToAll")},
    {QMessageBox::No, QT_TRANSLATE_NOOP("QDialogButtonBox", "No")},
    {QMessageBox::NoToAll, QT_TRANSLATE_NOOP("QDialogButtonBox", "NoToAll")},
    {QMessageBox::Abort, QT_TRANSLATE_NOOP("QDialogButtonBox", "Abort")},
    {QMessageBox::Retry, QT_TRANSLATE_NOOP("QDialogButtonBox", "Retry")},
    {QMessageBox::Ignore, QT_TRANSLATE_NOOP("QDialogButtonBox", "Ignore")},
};

QString translated(const char* text) {
  return QCoreApplication::translate("QDialogButtonBox", text);
}

int widthFor(const QPushButton& button) {
  const QMargins margins = button.contentsMargins();
  const int text = button.fontMetrics().boundingRect(button.text()).width();
  const int width = text + margins.left() + margins.right() + kButtonSpace;
  return button.layout() != nullptr ? width + 2 * button.layout()->margin() : width;
}

QPushButton* makeCloseButton(QWidget* parent) {
  auto* const button = new QPushButton(parent);
  button->setObjectName(QStringLiteral("btnClose"));
  button->setFixedSize(kCloseButtonSize, kCloseButtonSize);
  button->setToolTip(translated("Close"));
  button->setAccessibleName(button->toolTip());
  // The keyboard has Escape; Return belongs to the buttons below.
  button->setFocusPolicy(Qt::NoFocus);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

CMsgBox::CMsgBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
                 QWidget* parent, Qt::WindowFlags flags)
    : QMessageBox(icon, title, text, buttons, parent, flags | Qt::FramelessWindowHint) {
  fit_ = new brennet::ScreenFit(*this);
  applySkin();
  buildTitleStrip();
  // The panel of the buttons is visible, so they are centred in it.
  const int below = layout()->contentsMargins().bottom() - kBorder;
  if (QWidget* const panel = buttonPanel()) panel->setContentsMargins(0, below, 0, 0);
}

CMsgBox::StandardButton CMsgBox::showMessage(QWidget* parent, Icon icon, const QString& title,
                                             const QString& text, StandardButtons buttons,
                                             StandardButton defaultButton,
                                             const QString& moreText) {
  // While it runs, its parent may be destroyed and the box with it.
  const QPointer<CMsgBox> box =
      new CMsgBox(icon, title, text, NoButton, parent,
                  Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::FramelessWindowHint);
  box->addText(moreText);
  box->addButtons(buttons, defaultButton);
  box->setButtonTexts();
  const int result = brennet::runWindow(*box);
  if (box.isNull()) return NoButton;
  const std::unique_ptr<CMsgBox> done(box.data());
  return result == -1 ? Cancel : done->standardButton(done->clickedButton());
}

void CMsgBox::addText(const QString& moreText) {
  if (moreText.isEmpty()) return;
  setInformativeText(moreText);
  // It may hold the names of keys, of which "<" is one.
  findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))->setTextFormat(Qt::PlainText);
}

void CMsgBox::addButtons(StandardButtons buttons, StandardButton defaultButton) {
  for (int bit = FirstButton; bit <= LastButton; bit *= 2) {
    const auto which = static_cast<StandardButton>(bit);
    if (!buttons.testFlag(which)) continue;
    QPushButton* const button = addButton(which);
    if (this->defaultButton() != nullptr) continue;
    const bool isDefault =
        defaultButton != NoButton ? which == defaultButton : buttonRole(button) == AcceptRole;
    if (isDefault) setDefaultButton(button);
  }
}

void CMsgBox::setButtonTexts() {
  for (const ButtonText& row : kButtonTexts) {
    auto* const pushButton = qobject_cast<QPushButton*>(button(row.button));
    if (pushButton == nullptr) continue;
    pushButton->setText(translated(row.text));
    pushButton->setIcon({});  // some desktops add one, for which there is no room
    pushButton->setFixedWidth(widthFor(*pushButton));
  }
}

void CMsgBox::applySkin() {
  if (brennet::loadStyleSheet(*this, QStringLiteral(":/skin/msgbox.qss"))) return;
  // A skinned box would fail in the same way.
  QMessageBox plain(Critical, tr("error"), tr("failed to read qss file"), Ok, parentWidget());
  brennet::runWindow(plain);
}

void CMsgBox::buildTitleStrip() {
  auto* const strip = new QWidget(this);
  strip->setObjectName(QStringLiteral("msgbox_title_widget"));
  strip->setMinimumHeight(brennet::kStripHeight);  // tall letters take more
  auto* const title = new QLabel(windowTitle(), strip);
  title->setObjectName(QStringLiteral("msgbox_title_label"));
  title->setTextFormat(Qt::PlainText);
  connect(this, &QWidget::windowTitleChanged, title, &QLabel::setText);
  QPushButton* const close = makeCloseButton(strip);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);

  auto* const row = new QHBoxLayout(strip);
  row->setContentsMargins(10, kBorder, 8, 0);
  row->addWidget(title, 1);
  row->addWidget(close);
}

QWidget* CMsgBox::titleStrip() const {
  return findChild<QWidget*>(QStringLiteral("msgbox_title_widget"), Qt::FindDirectChildrenOnly);
}

QWidget* CMsgBox::buttonPanel() const {
  return findChild<QDialogButtonBox*>(QStringLiteral("qt_msgbox_buttonbox"));
}

brennet::DraggableWindow CMsgBox::dragged() const {
  return {*this, brennet::DragArea::TopStrip, titleStrip(), nullptr};
}

// QMessageBox makes a new layout whenever its icon or its texts change, so the strip joins the one
// that is shown. The place of the menu bar is above everything else, across the whole width.
void CMsgBox::showEvent(QShowEvent* event) {
  layout()->setMenuBar(titleStrip());
  QMessageBox::showEvent(event);
  fit_->comeUp(*event);
}

// The panel of the buttons extends to the border of the box.
void CMsgBox::paintEvent(QPaintEvent* event) {
  QMessageBox::paintEvent(event);
  QWidget* const buttons = buttonPanel();
  if (buttons == nullptr || buttons->style() == nullptr) return;
  const QMargins own = contentsMargins();
  const QMargins inset = own.isNull() ? QMargins(kBorder, kBorder, kBorder, kBorder) : own;
  QStyleOption option;
  option.initFrom(buttons);
  option.rect = QRect(QPoint(inset.left(), buttons->y()),
                      QPoint(width() - inset.right() - 1, height() - inset.bottom() - 1));
  QPainter painter(this);
  buttons->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, buttons);
}

void CMsgBox::mousePressEvent(QMouseEvent* event) {
  if (!brennet::startDrag(dragged(), *event)) QMessageBox::mousePressEvent(event);
}

bool CMsgBox::nativeEvent(const QByteArray& eventType, void* message, long* result) {
  if (brennet::answerHitTest(dragged(), eventType, message, result)) return true;
  return QWidget::nativeEvent(eventType, message, result);
}
