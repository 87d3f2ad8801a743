#include "ui/keymap/CKeyMapView.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

#include "ui/capture/VirtualKey.h"
#include "ui/keymap/KeyMapPainter.h"
#include "ui/window/EventGuard.h"

using brennet::MapCode;
using brennet::MapPress;

namespace {

constexpr unsigned kControl = 0x11;
constexpr unsigned kAlt = 0x12;
constexpr unsigned kLastVirtualKey = 0xFF;
constexpr double kUnit = 35;
constexpr double kSmallestUnit = 24;
constexpr double kMargin = 4;  // for the frame of the focus

QSize sizeOf(double unit) {
  return (brennet::mapSize(unit) + QSizeF(2 * kMargin, 2 * kMargin)).toSize();
}

QRectF areaOf(const QWidget& view) {
  return QRectF(view.rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
}

// Not every system reports a modifier as held in the event of its own press, and some still do in
// that of its release.
std::uint8_t heldAfter(const QKeyEvent& event, unsigned code) {
  bool control = event.modifiers().testFlag(Qt::ControlModifier);
  bool alt = event.modifiers().testFlag(Qt::AltModifier);
  const bool isPress = event.type() == QEvent::KeyPress;
  if (code == kControl) control = isPress;
  if (code == kAlt) alt = isPress;
  return static_cast<std::uint8_t>((control ? brennet::KeyWord::kCtrl : 0) |
                                   (alt ? brennet::KeyWord::kAlt : 0));
}

}  // namespace

CKeyMapView::CKeyMapView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_InputMethodEnabled, false);  // it would swallow keys
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CKeyMapView::setMap(const brennet::KeyMap& map, bool isDota7) {
  map_ = &map;
  isDota7_ = isDota7;
  lit_.reset();
  update();
}

void CKeyMapView::setLayer(std::uint8_t layer) {
  layer_ = layer;
  emit layerShown(shownLayer());
  update();
}

void CKeyMapView::light(MapPress press) {
  lit_ = press;
  update();
}

QSize CKeyMapView::sizeHint() const {
  return sizeOf(kUnit);
}

QSize CKeyMapView::minimumSizeHint() const {
  return sizeOf(kSmallestUnit);
}

QRect CKeyMapView::placeOf(MapCode code) const {
  for (const brennet::MapKey& key : brennet::mapKeys()) {
    if (key.code == code) return brennet::gridIn(areaOf(*this)).placeOf(key).toRect();
  }
  return {};
}

const brennet::MapKey* CKeyMapView::keyAt(QPointF place) const {
  return brennet::gridIn(areaOf(*this)).keyAt(place);
}

// No key is a shortcut here, and the tool tip says what a click would.
bool CKeyMapView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  if (event->type() != QEvent::ToolTip || map_ == nullptr) return QWidget::event(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const brennet::MapKey* const key = keyAt(help.pos());
  return brennet::guarded([&] {
    const QString text =
        key == nullptr ? QString() : brennet::pressStory(*map_, {key->code, shownLayer()});
    QToolTip::showText(help.globalPos(), text, this);
    return true;
  });
}

// Tab is a key like any other.
bool CKeyMapView::focusNextPrevChild(bool next) {
  return !next && QWidget::focusNextPrevChild(true);
}

void CKeyMapView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void CKeyMapView::focusOutEvent(QFocusEvent* event) {
  hold(0);
  update();
  QWidget::focusOutEvent(event);
}

void CKeyMapView::hold(std::uint8_t modifiers) {
  if (held_ == modifiers) return;
  held_ = modifiers;
  emit layerShown(shownLayer());
  update();
}

void CKeyMapView::press(MapPress press) {
  light(press);
  emit pressed(press.code, press.modifiers);
}

void CKeyMapView::keyPressEvent(QKeyEvent* event) {
  const unsigned code = brennet::virtualKeyOf(*event);
  hold(heldAfter(*event, code));
  if (code == 0 || code > kLastVirtualKey || event->isAutoRepeat()) return;
  // Ctrl and Alt show their layer, and may be keys themselves in the DotA 7 mode.
  const bool isModifier = code == kControl || code == kAlt;
  const MapPress key{static_cast<MapCode>(code), isModifier ? std::uint8_t{0} : held_};
  if (!isModifier || isUsed(key)) press(key);
}

bool CKeyMapView::isUsed(MapPress press) const {
  return map_ != nullptr &&
         std::any_of(map_->begin(), map_->end(),
                     [&](const brennet::MapUse& use) { return use.press == press; });
}

void CKeyMapView::keyReleaseEvent(QKeyEvent* event) {
  hold(heldAfter(*event, brennet::virtualKeyOf(*event)));
}

void CKeyMapView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) press({brennet::kWheelClick, 0});
  if (event->button() != Qt::LeftButton) return;
  if (const brennet::MapKey* const key = keyAt(event->localPos())) {
    light({key->code, shownLayer()});
    emit clicked(key->code, shownLayer());
  }
}

void CKeyMapView::wheelEvent(QWheelEvent* event) {
  constexpr int kStep = QWheelEvent::DefaultDeltasPerStep;
  turned_ += event->angleDelta().y();
  for (; turned_ >= kStep; turned_ -= kStep) press({brennet::kWheelUp, 0});
  for (; turned_ <= -kStep; turned_ += kStep) press({brennet::kWheelDown, 0});
  event->accept();
}

void CKeyMapView::paintEvent(QPaintEvent* /*event*/) {
  if (map_ == nullptr) return;
  QPainter painter(this);
  painter.fillRect(rect(), brennet::mapBackground());
  brennet::paintMap(painter, areaOf(*this),
                    {.map = *map_, .isDota7 = isDota7_, .layer = shownLayer(), .lit = lit_});
  if (!hasFocus()) return;
  painter.setPen(QPen(Qt::white, 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}
