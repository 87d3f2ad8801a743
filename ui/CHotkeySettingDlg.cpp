#include "ui/CHotkeySettingDlg.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStackedLayout>

#include <initializer_list>
#include <new>
#include <optional>
#include <utility>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "gameside/dota7/RegistryImport.h"
#include "model/HotkeyConfig.h"
#include "ui/capture/Dota7FieldText.h"
#include "ui/capture/RefusalText.h"
#include "ui/capture/SettingText.h"
#include "ui/capture/TabOrder.h"
#include "ui/capture/VirtualKey.h"
#include "ui/history/ChangeMarks.h"
#include "ui/history/Dota7Marks.h"
#include "ui/history/EditHistory.h"
#include "ui/history/SchemeMarks.h"
#include "ui/history/UndoButtons.h"
#include "ui/keymap/Dota7KeyMap.h"
#include "ui/keymap/SchemeKeyMap.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CBasicSettingWidget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/CDotA7BasicSetting.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"
#include "ui/pages/DroppedKeysNotice.h"
#include "ui/pages/KeyMapWindow.h"
#include "ui/pages/SchemeTransferButtons.h"
#include "ui/window/CMsgBox.h"
#include "ui/window/CNoticeStrip.h"
#include "ui/window/EventGuard.h"
#include "ui/window/ModalRun.h"
#include "ui/window/ScreenFit.h"
#include "ui/window/StyleSheet.h"
#include "ui/window/WidgetsApart.h"
#include "ui/window/WindowDrag.h"
#include "ui_CHotkeySettingDlg.h"

namespace {

constexpr unsigned kReturn = 0x0D;
constexpr unsigned kEscape = 0x1B;

}  // namespace

CHotkeySettingDlg::CHotkeySettingDlg(brennet::HotkeyConfig& config,
                                     brennet::Dota7KeyInfoManager& manager)
    : QDialog(nullptr, Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      guard_(std::make_unique<brennet::EventGuard>(*this)),
      config_(config),
      manager_(manager),
      form_(std::make_unique<Ui::CHotkeySettingDlg>()) {
  setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint);
  setAttribute(Qt::WA_StyledBackground);  // the skin's border, not only its colour
  form_->setupUi(this);
  fit_ = new brennet::ScreenFit(*this);
  fit_->fold(*form_->layHeader);
  fit_->spare(*form_->lblHeader);  // the title says as much
  manager_.beginRun();
  createPages();
  fillForm();
  connectForm();
  connectPages();
  setMode(Mode::Platform);
  rememberSteps();
  offerTransfers();
  brennet::setTabOrderOfLayouts(*this);
  // A key field would take the first key, whatever it is meant for.
  form_->titleWidget->setFocus();
}

// If the application quits or the host hides the window, nobody has confirmed anything.
CHotkeySettingDlg::~CHotkeySettingDlg() {
  if (result() == Accepted) return;
  try {
    manager_.cancelChanges();
  } catch (const std::bad_alloc&) {
    // The registry has its old content again; the next dialog reads anew what its pages show.
  }
}

void CHotkeySettingDlg::createPages() {
  advanced_ = new CAdvancedSettingWidget(config_, this);
  olderBasic_ = new CBasicSettingWidget(config_, this);
  basic_ = new CBasicSetting7Widget(config_, this);
  chatWheel_ = new CChatRouletteSettingWidget(config_, this);
  dota7_ = new CDotA7BasicSetting(manager_, this, &config_);
  quickChat_ = new ChatKeySettingWidget(config_, this);
  dota7Chat_ = new Dota7ChatKeySettingWidget(manager_, this, &config_);

  stack_ = new QStackedLayout(form_->pageArea);
  // The stack shows its first page at once, which would lay it out without the skin, and in vain.
  basic_->layout()->setEnabled(false);
  stack_->addWidget(basic_);
  basic_->layout()->setEnabled(true);
  stack_->addWidget(dota7_);
  for (QWidget* const aside : std::initializer_list<QWidget*>{advanced_, olderBasic_, chatWheel_}) {
    aside->hide();
  }
  // In the order in which they show a choice.
  pages_ = {{basic_, Mode::Platform},
            {quickChat_, Mode::Platform},
            {advanced_, Mode::Platform},
            {chatWheel_, Mode::Platform},
            {dota7_, Mode::Dota7}};
}

void CHotkeySettingDlg::fillForm() {
  form_->cmbHotkeySetting->addItems(
      {tr("setting group 1"), tr("setting group 2"), tr("setting group 3")});
  showChoice();
  for (QLabel* const link :
       {form_->lblResetToDefaultSetting, form_->lblUseRecommendedSetting, form_->lblKeyMap}) {
    link->installEventFilter(this);
  }
  form_->btnSwitchPlat->hide();
  form_->btnSwitchDota7->hide();
  form_->lblUseRecommendedSetting->hide();
}

void CHotkeySettingDlg::connectForm() {
  using Dialog = CHotkeySettingDlg;
  connect(form_->btnOK, &QPushButton::clicked, this, &Dialog::onClickedOkBtn);
  connect(form_->btnCancel, &QPushButton::clicked, this, &Dialog::onClickedCancelBtn);
  connect(form_->btnClose, &QPushButton::clicked, this, &Dialog::onClickedCancelBtn);
  connect(form_->chkUseHotkeySettings, &QCheckBox::toggled, this,
          &Dialog::onToggled_UseHotkeySettings);
  connect(this, &Dialog::resetSetting, this, &Dialog::onResetSetting);
  connect(this, &Dialog::useRecommendedSetting, this, &Dialog::onUseRecommendedSetting);
  connect(form_->cmbHotkeySetting, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &Dialog::onCurrentIndexChanged_HotkeySetting);
  connect(form_->btnSwitchDota7, &QPushButton::clicked, this, &Dialog::onSwitchDota7KeySettingDlg);
  connect(form_->btnSwitchPlat, &QPushButton::clicked, this, &Dialog::onSwitchPlatKeySettingDlg);
}

void CHotkeySettingDlg::connectPages() {
  using Dialog = CHotkeySettingDlg;
  advanced_->tellOfQuickChatKeys([this](int set, bool isChosen) {
    if (set == 0) {
      quickChat_->onToggled_ChatKey_1(isChosen);
    } else {
      quickChat_->onToggled_ChatKey_2(isChosen);
    }
  });
  connect(basic_, &CBasicSetting7Widget::showHotKeySettingDlg, this,
          &Dialog::onShowHotKeySettingDlg);
  connect(basic_, &CBasicSetting7Widget::showDota7SettingDlg, this,
          &Dialog::onSwitchDota7KeySettingDlg);
  connect(dota7_, &CDotA7BasicSetting::showDota7HotKeySettingDlg, this,
          &Dialog::onShowDota7HotKeySettingDlg);
}

void CHotkeySettingDlg::rememberSteps() {
  history_ = std::make_unique<brennet::EditHistory>(config_, manager_);
  markChanges();
  undoButtons_ = std::make_unique<brennet::UndoButtons>(
      *history_, *form_->btnUndo, *form_->btnRedo,
      [this](const brennet::EditStep& step) { showStep(step); }, [this] { marks_->refresh(); });
}

void CHotkeySettingDlg::offerTransfers() {
  transfers_ =
      std::make_unique<brennet::SchemeTransferButtons>(config_, *this,
                                                       brennet::SchemeTransferButtons::Controls{
                                                           .groups = *form_->cmbHotkeySetting,
                                                           .copyFrom = *form_->btnCopyFrom,
                                                           .exportFile = *form_->btnExport,
                                                           .importFile = *form_->btnImport,
                                                       },
                                                       [this](const QString& what) {
                                                         showSettings();
                                                         undoButtons_->note(what);
                                                       });
}

void CHotkeySettingDlg::markChanges() {
  marks_ = std::make_unique<brennet::ChangeMarks>();
  const brennet::SchemeMarks scheme(*marks_, *history_, config_);
  basic_->mark(scheme);
  quickChat_->mark(scheme);
  const brennet::Dota7Marks dota7(*marks_, *history_, manager_);
  dota7_->mark(dota7);
  dota7Chat_->mark(dota7);
  marks_->add(*form_->chkUseHotkeySettings, [this]() -> std::optional<QString> {
    const bool wasOn = history_->openingEnable();
    if (config_.enable() == wasOn) return std::nullopt;
    return brennet::onOffText(wasOn);
  });
}

void CHotkeySettingDlg::setDataFolder(std::u16string_view folder) {
  const bool canHaveDota7 = brennet::importDefaultRegistry(folder);
  basic_->setDota7Offered(canHaveDota7);
}

void CHotkeySettingDlg::tellDroppedKeys(const brennet::LoadReport& report) {
  CNoticeStrip* const strip =
      brennet::newDroppedKeysNotice(report, static_cast<int>(config_.index()), this);
  if (strip == nullptr) return;
  form_->layDialog->insertWidget(form_->layDialog->indexOf(form_->titleWidget) + 1, strip);
  connect(strip, &CNoticeStrip::closed, this, [this] { fit_->refit(); });
  brennet::setTabOrderOfLayouts(*this);
}

void CHotkeySettingDlg::setMode(Mode mode) {
  const struct {
    QWidget* widget;
    Mode mode;
  } kShownIn[] = {
      {form_->lblSetting, Mode::Platform},  {form_->cmbHotkeySetting, Mode::Platform},
      {form_->btnCopyFrom, Mode::Platform}, {form_->btnExport, Mode::Platform},
      {form_->btnImport, Mode::Platform},   {form_->chkUseHotkeySettings, Mode::Platform},
      {form_->btnSwitchPlat, Mode::Dota7},
  };
  mode_ = mode;
  stack_->setCurrentWidget(mode == Mode::Platform ? static_cast<QWidget*>(basic_) : dota7_);
  for (const auto& row : kShownIn) row.widget->setVisible(row.mode == mode);
  form_->btnSwitchDota7->hide();
  fit_->refit();  // the header needs another width
}

// Nothing is connected to the next four; clients know them.
void CHotkeySettingDlg::onSwitchSettingUI() {}

void CHotkeySettingDlg::onSwitchBasicSettingUI() {
  stack_->setCurrentWidget(basic_);
}

void CHotkeySettingDlg::onSwitchAdvancedSettingUI() {
  stack_->setCurrentWidget(dota7_);
}

// The chat wheel's page is not in the stack: what was shown stays.
void CHotkeySettingDlg::onSwitchChatWheelSettingUI() {
  chatWheel_->focusFirst();
}

// A key field that has the focus must finish what was begun in it before the changes count.
void CHotkeySettingDlg::leaveField() {
  if (QWidget* const field = focusWidget()) field->clearFocus();
}

void CHotkeySettingDlg::onClickedOkBtn() {
  leaveField();
  // What was begun in the field may be lost: then nothing is confirmed.
  if (guard_->hasFailed()) return;
  manager_.acceptChanges();
  setResult(Accepted);  // even if the window cannot be closed properly
  accept();
}

void CHotkeySettingDlg::onClickedCancelBtn() {
  reject();
}

void CHotkeySettingDlg::reject() {
  leaveField();
  manager_.cancelChanges();
  QDialog::reject();
}

void CHotkeySettingDlg::onToggled_UseHotkeySettings(bool bChecked) {
  config_.setEnable(bChecked);
}

bool CHotkeySettingDlg::isConfirmed(int icon, const QString& title, const QString& question) {
  const int answer =
      CMsgBox::showMessage(this, static_cast<QMessageBox::Icon>(icon), title, question,
                           QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
  return answer == QMessageBox::Ok;
}

void CHotkeySettingDlg::onResetSetting() {
  // Catalogues can say what would be lost in the second mode.
  const QString question =
      mode_ == Mode::Platform
          ? tr("After resetting, your modification on basic and advanced settings will lost.\nAre "
               "you sure to continue?")
          : tr("After resetting, your modification on basic and advanced settings will lost.\nAre "
               "you sure to continue?",
               "DotA 7");
  if (!isConfirmed(QMessageBox::Warning, tr("reset settings"), question)) return;
  clearSettings(mode_);
  undoButtons_->note(form_->lblResetToDefaultSetting->text());
}

void CHotkeySettingDlg::onUseRecommendedSetting() {
  if (!isConfirmed(QMessageBox::Question, tr("use system recommended settings"),
                   tr("Are you sure to use system recommended settings?"))) {
    return;
  }
  if (mode_ != Mode::Platform) return;
  basic_->useRecommended();
  clearSettings(Mode::Platform, basic_);
  undoButtons_->note(form_->lblUseRecommendedSetting->text());
}

// Pages are kept up to date even while they are hidden.
void CHotkeySettingDlg::showSettings() {
  for (const Page& row : pages_) row.page->showSettings();
}

// If the file names a scheme that does not exist, none is shown, and each can be chosen.
void CHotkeySettingDlg::showChoice() {
  const QSignalBlocker quietGroup(form_->cmbHotkeySetting);
  const QSignalBlocker quietSwitch(form_->chkUseHotkeySettings);
  const auto index = static_cast<int>(config_.index());
  const bool isThere = index < form_->cmbHotkeySetting->count();
  form_->cmbHotkeySetting->setCurrentIndex(isThere ? index : -1);
  form_->chkUseHotkeySettings->setChecked(config_.enable());
  if (transfers_ != nullptr) transfers_->refresh();
}

// The player is to see what was undone or done again.
void CHotkeySettingDlg::showStep(const brennet::EditStep& step) {
  const Mode mode = step.isDota7() ? Mode::Dota7 : Mode::Platform;
  if (mode != mode_) setMode(mode);
  showChoice();
  showSettings();
}

void CHotkeySettingDlg::clearSettings(Mode mode, const brennet::SettingPage* spared) {
  for (const Page& row : pages_) {
    if (row.mode == mode && row.page != spared) row.page->clearSettings();
  }
}

void CHotkeySettingDlg::onCurrentIndexChanged_HotkeySetting(int index) {
  if (index < 0 || index >= brennet::HotkeyConfig::kSchemes) return;
  config_.setIndex(static_cast<std::uint32_t>(index));
  transfers_->refresh();
  showSettings();
}

void CHotkeySettingDlg::onShowHotKeySettingDlg() {
  quickChat_->raise();
  brennet::runWindow(*quickChat_);
}

void CHotkeySettingDlg::onSwitchPlatKeySettingDlg() {
  setMode(Mode::Platform);
}

void CHotkeySettingDlg::onSwitchDota7KeySettingDlg() {
  dota7_->showSettings();
  history_->forgetDota7();
  marks_->refresh();
  setMode(Mode::Dota7);
}

void CHotkeySettingDlg::onShowDota7HotKeySettingDlg() {
  dota7Chat_->showSettings();
  dota7Chat_->raise();
  if (brennet::runWindow(*dota7Chat_) == QDialog::Accepted) {
    dota7Chat_->savePhrases();
  } else {
    dota7Chat_->showSettings();
  }
  // The click that ended the window has been dealt with, and another may not come.
  undoButtons_->note();
}

// A settings file may name a setting group that does not exist; then no key does anything.
brennet::KeyMap CHotkeySettingDlg::shownKeys() {
  if (mode_ == Mode::Dota7) return brennet::keyMapOf(manager_.settings());
  return config_.editableScheme() == nullptr ? brennet::KeyMap()
                                             : brennet::keyMapOf(config_.scheme());
}

// What is shown is what was set when the window came up; nothing is kept up to date after that.
void CHotkeySettingDlg::showKeyMap() {
  leaveField();
  if (keyMap_ == nullptr) keyMap_ = new KeyMapWindow(this);
  keyMap_->setMap(shownKeys(), mode_ == Mode::Dota7);
  if (brennet::runWindow(*keyMap_) != QDialog::Accepted || !keyMap_->chosen()) return;
  leadTo(*keyMap_->chosen());
}

void CHotkeySettingDlg::leadTo(const brennet::MapTarget& target) {
  if (const auto* const field = std::get_if<const brennet::Dota7KeyField*>(&target)) {
    if (!brennet::isDota7ChatKey(**field)) {
      dota7_->leadTo(**field);
      return;
    }
    dota7Chat_->leadTo(**field);
    onShowDota7HotKeySettingDlg();
    return;
  }
  const auto slot = std::get<brennet::KeySlot>(target);
  if (brennet::windowOf(slot) != brennet::KeyWindow::QuickChat) {
    basic_->leadTo(slot);
    return;
  }
  quickChat_->leadTo(slot.index);
  onShowHotKeySettingDlg();
}

// For the keyboard a link is a button: a key that goes down and up on it clicks it.
bool CHotkeySettingDlg::isLinkClicked(const QLabel& link, const QEvent& event) {
  const auto isItsKey = [&event] {
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Space || key == Qt::Key_Enter;
  };
  switch (event.type()) {
    case QEvent::MouseButtonRelease:
      return link.rect().contains(static_cast<const QMouseEvent&>(event).pos());
    case QEvent::KeyPress:
      keyIsDownOn_ = isItsKey() ? &link : nullptr;
      return false;
    case QEvent::FocusOut:
      keyIsDownOn_ = nullptr;
      return false;
    case QEvent::KeyRelease:
      return std::exchange(keyIsDownOn_, nullptr) == &link && isItsKey();
    default:
      return false;
  }
}

bool CHotkeySettingDlg::eventFilter(QObject* watched, QEvent* event) {
  const auto* const link = qobject_cast<const QLabel*>(watched);
  if (link != nullptr && isLinkClicked(*link, *event)) {
    brennet::guarded([&] {
      if (link == form_->lblResetToDefaultSetting) emit resetSetting();
      if (link == form_->lblUseRecommendedSetting) emit useRecommendedSetting();
      if (link == form_->lblKeyMap) showKeyMap();
    });
  }
  return QDialog::eventFilter(watched, event);
}

// Neither Escape nor Return ends the dialog: players try both as keys in the fields.
void CHotkeySettingDlg::keyPressEvent(QKeyEvent* event) {
  const unsigned key = brennet::virtualKeyOf(*event);
  if (event->matches(QKeySequence::Close) || key == kEscape || key == kReturn) return;
  QDialog::keyPressEvent(event);
}

brennet::DraggableWindow CHotkeySettingDlg::dragged() const {
  return {.window = *this, .titleStrip = form_->titleWidget, .form = form_->formWidget};
}

void CHotkeySettingDlg::mousePressEvent(QMouseEvent* event) {
  if (!brennet::startDrag(dragged(), *event)) QDialog::mousePressEvent(event);
}

bool CHotkeySettingDlg::nativeEvent(const QByteArray& eventType, void* message, long* result) {
  return brennet::answerHitTest(dragged(), eventType, message, result) ||
         QDialog::nativeEvent(eventType, message, result);
}

// What is not seen is not polished, neither with the dialog nor with its skin.
void CHotkeySettingDlg::setVisible(bool isVisible) {
  if (!isVisible || !isFirstShow_) return QDialog::setVisible(isVisible);
  const brennet::WidgetsApart apart(*this,
                                    {advanced_, olderBasic_, chatWheel_, quickChat_, dota7Chat_});
  QDialog::setVisible(true);
}

void CHotkeySettingDlg::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  const bool isSkinned = !isFirstShow_ || applySkin();
  isFirstShow_ = false;
  fit_->comeUp(*event);
  // Windows shows tool windows without giving them the keyboard.
  activateWindow();
  if (isSkinned) return;
  CMsgBox::showMessage(this, QMessageBox::Critical, QStringLiteral("error"),
                       QStringLiteral("failed to read qss file"));
}

bool CHotkeySettingDlg::applySkin() {
  const bool isLoaded = brennet::loadStyleSheet(*this, QStringLiteral(":/skin/war3key.qss"));
  if (isLoaded) fitToSkin();
  return isLoaded;
}

// The hidden page would keep the size that it has without the skin, and so would the dialog, which
// is as large as the larger page.
void CHotkeySettingDlg::fitToSkin() {
  for (QWidget* const widget : dota7_->findChildren<QWidget*>()) widget->updateGeometry();
  for (QLayout* const inner : form_->pageArea->findChildren<QLayout*>()) inner->invalidate();
  layout()->activate();
}
