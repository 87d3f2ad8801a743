#include "ui/chat/RingLayout.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace brennet {
namespace {

// A smaller distance is only a rounding error.
constexpr double kNothing = 1e-9;

// Where an item is on a circle with a diameter of 1 around the origin.
QPointF placeOf(std::size_t item, std::size_t count) {
  const double angle = 2 * M_PI * static_cast<double>(item) / static_cast<double>(count);
  return {std::sin(angle) / 2, -std::cos(angle) / 2};
}

// The distances between every two places, across and down.
std::vector<QSizeF> distances(std::size_t count) {
  std::vector<QSizeF> found;
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const QPointF between = placeOf(i, count) - placeOf(j, count);
      found.emplace_back(std::abs(between.x()), std::abs(between.y()));
    }
  }
  return found;
}

}  // namespace

RingLayout::RingLayout(QSize picture, QSize ring, QWidget* parent)
    : QLayout(parent), picture_(picture), ring_(ring) {}

RingLayout::~RingLayout() = default;

void RingLayout::addItem(QLayoutItem* item) {
  items_.emplace_back(item);
}

int RingLayout::count() const {
  return static_cast<int>(items_.size());
}

QLayoutItem* RingLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* RingLayout::takeAt(int index) {
  if (index < 0 || index >= count()) return nullptr;
  const auto taken = items_.begin() + index;
  QLayoutItem* const item = taken->release();
  items_.erase(taken);
  return item;
}

Qt::Orientations RingLayout::expandingDirections() const {
  return {};
}

QSize RingLayout::cell() const {
  QSize size(0, 0);
  for (const auto& item : items_) size = size.expandedTo(item->sizeHint());
  return size;
}

// Items at the same height need room beside each other. Any other pair without that room needs room
// above each other.
QSizeF RingLayout::ringFor(QSize cell) const {
  const int space = std::max(spacing(), 0);
  const QSizeF room(cell.width() + space, cell.height() + space);
  const std::vector<QSizeF> pairs = distances(items_.size());
  QSizeF ring = ring_;
  for (const QSizeF& pair : pairs) {
    if (pair.height() > kNothing) continue;
    ring.setWidth(std::max(ring.width(), room.width() / pair.width()));
  }
  for (const QSizeF& pair : pairs) {
    if (pair.height() <= kNothing || ring.width() * pair.width() >= room.width()) continue;
    ring.setHeight(std::max(ring.height(), room.height() / pair.height()));
  }
  return ring;
}

QSize RingLayout::minimumSize() const {
  const QSize items = cell();
  const QSizeF ring = ringFor(items);
  const QSize all(qCeil(ring.width()) + items.width(), qCeil(ring.height()) + items.height());
  const QMargins margins = contentsMargins();
  return all.expandedTo(picture_) +
         QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize RingLayout::sizeHint() const {
  return minimumSize();
}

void RingLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  const QRectF area = rect.marginsRemoved(contentsMargins());
  const QSize size = cell();
  const QSizeF ring = ringFor(size);
  for (std::size_t i = 0; i < items_.size(); ++i) {
    const QPointF place = placeOf(i, items_.size());
    const QPointF corner = area.center() +
                           QPointF(place.x() * ring.width(), place.y() * ring.height()) -
                           QPointF(size.width() / 2.0, size.height() / 2.0);
    items_[i]->setGeometry({corner.toPoint(), size});
  }
}

}  // namespace brennet
