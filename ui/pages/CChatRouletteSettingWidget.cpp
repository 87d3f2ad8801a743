#include "ui/pages/CChatRouletteSettingWidget.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QTreeWidgetItem>

#include "ui/capture/FeatureKeys.h"
#include "ui/capture/KeyMessages.h"
#include "ui/chat/CCustomLineEdit.h"
#include "ui/chat/ChatPhrases.h"
#include "ui/chat/PhraseDelegate.h"
#include "ui/chat/RingLayout.h"
#include "ui/chat/TypedPhrase.h"
#include "ui/pages/Form.h"
#include "ui/window/Text.h"
#include "ui_CChatRouletteSettingWidget.h"

namespace {

// Pixels by which the skin indents the phrases, once the tree has it.
constexpr int kSkinIndent = 13;

// The wheel's picture; the room below it, as the style sheet moves it up by that much; and the ring
// of slots, which leaves the hub of the picture free and its rim visible.
constexpr QSize kPicture(380, 380);
constexpr int kRoomBelow = 80;
constexpr QSize kRing(340, 300);

// The least number of characters to be read without scrolling.
constexpr int kSlotCharacters = 12;
constexpr int kTreeCharacters = 24;
constexpr char kLongestKey[] = "CTRL + Alt + PRINT SCREEN MMM";  // MMM: room for the frame
constexpr char16_t kWideCharacter = u'\u4E2D';

int widthOf(int characters, const QWidget& page) {
  return page.fontMetrics().horizontalAdvance(QString(characters, QChar(kWideCharacter)));
}

// The number that the name of a slot ends in, 1 to 8; 0 for other names.
std::size_t slotNumber(const QObject& field) {
  const QString name = field.objectName();
  if (name.isEmpty()) return 0;
  const QChar last = name.at(name.size() - 1);
  return last >= u'1' && last <= u'8' ? static_cast<std::size_t>(last.unicode() - u'0') : 0;
}

QString translated(const char* key) {
  QString text = QCoreApplication::translate("CChatRouletteSettingWidget", key);
  return text.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
}

// A phrase may be longer than its field, which then shows the beginning, and all of it as a tool
// tip.
void showFromStart(QLineEdit& field) {
  const QString text = field.text();
  field.setCursorPosition(0);
  field.setToolTip(text.isEmpty() ? QString() : Qt::convertFromPlainText(text));
}

}  // namespace

CChatRouletteSettingWidget::CChatRouletteSettingWidget(brennet::HotkeyConfig& config,
                                                       QWidget* parent)
    : QWidget(parent),
      config_(config),
      form_(brennet::formOn<Ui::CChatRouletteSettingWidget>(*this)),
      capture_(
          {.style = {},
           .captures = [this](const QLineEdit& field) { return &field == form_->edtChatWheelKey; },
           .slotOf = brennet::featureKeyOf,
           .tellUsed = [this](const QString& why) { brennet::tellKeyIsUsed(this, why); }},
          config) {
  makeSlots();
  capture_.install(*this, *this);
  fillTree();
  CChatRouletteSettingWidget::showSettings();
  connectAll();
}

CChatRouletteSettingWidget::~CChatRouletteSettingWidget() = default;

void CChatRouletteSettingWidget::makeSlots() {
  auto* const ring = new brennet::RingLayout(kPicture, kRing, form_->ChatWheel);
  ring->setContentsMargins(0, 0, 0, kRoomBelow);
  // In two steps, since Qt cannot tell an order from its rotation: the slots go behind the key,
  // before the check box, and then the key goes behind them.
  QWidget* before = form_->edtChatWheelKey;
  for (int n = 1; n <= brennet::kPhrases; ++n) {
    auto* const field = new CCustomLineEdit(form_->ChatWheel);
    field->setObjectName(QStringLiteral("edtChatWheel_%1").arg(n));
    field->setAccessibleName(tr("轮盘短语 %1").arg(n));
    field->setReadOnly(true);
    field->setContextMenuPolicy(Qt::PreventContextMenu);  // nothing can be typed here
    field->setAttribute(Qt::WA_InputMethodEnabled, false);
    field->setAcceptDrops(true);
    field->setFocusPolicy(Qt::StrongFocus);
    field->setMinimumWidth(widthOf(kSlotCharacters, *this));
    ring->addWidget(field);
    setTabOrder(before, field);
    before = field;
    slots_.push_back(field);
  }
  setTabOrder(before, form_->edtChatWheelKey);
  // Measured in the letters of key texts: those of phrases may come from another font.
  form_->edtChatWheelKey->setMinimumWidth(
      fontMetrics().horizontalAdvance(QLatin1String(kLongestKey)));
}

void CChatRouletteSettingWidget::fillTree() {
  for (const brennet::PhraseCategory& category : brennet::chatPhrases()) {
    auto branch = std::make_unique<QTreeWidgetItem>(QStringList(translated(category.key)));
    for (const char* const key : category.phrases) {
      branch->addChild(new QTreeWidgetItem({translated(key)}));
    }
    form_->ChatPhrases->addTopLevelItem(branch.release());
  }
  form_->ChatPhrases->setMinimumWidth(widthOf(kTreeCharacters, *this));
  form_->ChatPhrases->setItemDelegate(new brennet::PhraseDelegate(form_->ChatPhrases));
  form_->ChatPhrases->expandAll();
  // As wide as the widest phrase, with a scroll bar if that is wider than the tree. Once is enough,
  // as the phrases never change; the header would measure them again at every change.
  form_->ChatPhrases->resizeColumnToContents(0);
  form_->ChatPhrases->header()->setMinimumSectionSize(form_->ChatPhrases->columnWidth(0) +
                                                      kSkinIndent);
}

void CChatRouletteSettingWidget::connectAll() {
  using This = CChatRouletteSettingWidget;
  for (const CCustomLineEdit* const field : slots_) {
    connect(field, &QLineEdit::textChanged, this, &This::OnChatPhraseChanged);
  }
  connect(form_->chkShowMana, &QCheckBox::toggled, this, &This::onToggled_ShowFMana);
  connect(form_->ChatPhrases, &QTreeWidget::itemClicked, this, &This::onChatPhraseSelected);
}

void CChatRouletteSettingWidget::focusFirst() {
  setFocus();
  for (QWidget* const inner : findChildren<QWidget*>()) {
    if (inner->focusPolicy() == Qt::NoFocus) continue;
    inner->setFocus();
    return;
  }
}

void CChatRouletteSettingWidget::showSettings() {
  for (std::size_t n = 0; n < slots_.size(); ++n) {
    const auto& phrase = config_.scheme().ChatWheel[n];
    if (!phrase) continue;
    // The stored phrase may be longer than the part of it that would be stored now.
    const QSignalBlocker blocker(slots_[n]);
    slots_[n]->setText(brennet::toQString(*phrase));
    showFromStart(*slots_[n]);
  }
  capture_.refresh();
  form_->chkShowMana->hide();
}

void CChatRouletteSettingWidget::OnChatPhraseChanged() {
  auto* const field = qobject_cast<QLineEdit*>(sender());
  if (field == nullptr) return;
  const std::size_t number = slotNumber(*field);
  if (number == 0) return;
  showFromStart(*field);
  brennet::HotkeyScheme* const scheme = config_.editableScheme();
  if (scheme == nullptr) return;
  scheme->ChatWheel[number - 1] = brennet::cutTypedPhrase(field->text().toStdU16String());
}

void CChatRouletteSettingWidget::onChatPhraseSelected(QTreeWidgetItem* item, int /*col*/) {
  if (item == nullptr || item->parent() == nullptr) return;
  const QString phrase = item->text(0);
  for (QLineEdit* const field : brennet::editFieldsOf(*this)) {
    if (slotNumber(*field) != 0 && field->hasFocus()) field->setText(phrase);
  }
}

void CChatRouletteSettingWidget::onToggled_ShowFMana(bool bChecked) {
  brennet::HotkeyScheme* const scheme = config_.editableScheme();
  if (scheme != nullptr) scheme->ShowFManaFlag = bChecked ? 1 : 0;
}

bool CChatRouletteSettingWidget::eventFilter(QObject* watched, QEvent* event) {
  return capture_.filter(watched, event) || QWidget::eventFilter(watched, event);
}

void CChatRouletteSettingWidget::dragEnterEvent(QDragEnterEvent* event) {
  event->acceptProposedAction();
}
