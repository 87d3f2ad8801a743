#include "ui/history/ChangeMarks.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>
#include <iterator>
#include <utility>

#include "ui/capture/ChangeLine.h"
#include "ui/window/EventGuard.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

constexpr QRgb kGold = 0xffffd166;
constexpr QRgb kEdge = 0xff1e242f;  // seen where the control is bright
constexpr int kSide = 7;            // of the corner, in units

QString wasText(const QString& was) {
  const char* const text = QT_TRANSLATE_NOOP("ChangeMarks", "打开窗口时：%1");
  return QCoreApplication::translate("ChangeMarks", text).arg(was);
}

// Fields have their text on the left, and check boxes their box.
void drawCorner(QWidget& control) {
  const QRectF area = control.rect();
  const bool isField = qobject_cast<QLineEdit*>(&control) != nullptr;
  const qreal inwards = isField ? -kSide : kSide;
  const QPointF corner = isField ? area.topRight() : area.topLeft();
  const QPointF points[] = {corner, corner + QPointF(inwards, 0), corner + QPointF(0, kSide)};
  QPainter painter(&control);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(kEdge));
  painter.setBrush(QColor(kGold));
  painter.drawPolygon(points, static_cast<int>(std::size(points)));
}

}  // namespace

void ChangeMarks::add(QWidget& control, Was was) {
  refresh(addRow(control, std::move(was)));
}

void ChangeMarks::addText(QLineEdit& field, Was was) {
  add(field, std::move(was));
  connect(&field, &QLineEdit::textChanged, this, [this, &field] { refresh(field); });
}

void ChangeMarks::addKey(QLineEdit& field, KeyFieldMenu menu) {
  Row& row = addRow(field, menu.was);
  row.menu = std::move(menu);
  refresh(row);
}

ChangeMarks::Row& ChangeMarks::addRow(QWidget& control, Was was) {
  control.installEventFilter(this);
  return rows_.emplace_back(Row{.control = &control,
                                .was = std::move(was),
                                .menu = {},
                                .ownToolTip = control.toolTip(),
                                .shownToolTip = control.toolTip(),
                                .ownDescription = control.accessibleDescription(),
                                .line = {}});
}

ChangeMarks::Row* ChangeMarks::findRow(const QObject* control) {
  const auto row = std::ranges::find(rows_, control, &Row::control);
  return row != rows_.end() ? &*row : nullptr;
}

void ChangeMarks::refresh() {
  for (Row& row : rows_) refresh(row);
}

void ChangeMarks::refresh(QWidget& control) {
  guarded([&] {
    if (Row* const row = findRow(&control)) refresh(*row);
  });
}

// Whoever else has changed the tool tip in the meantime keeps it, with the line below.
void ChangeMarks::refresh(Row& row) {
  const std::optional<QString> was = row.was();
  QString line = was ? wasText(*was) : QString();
  const bool hasOthersToolTip = !row.menu && row.control->toolTip() != row.shownToolTip;
  if (hasOthersToolTip) row.ownToolTip = row.control->toolTip();
  if (line == row.line && !hasOthersToolTip) return;  // nearly always
  if (line.isEmpty() != row.line.isEmpty()) row.control->update();
  row.line = std::move(line);
  show(row);
}

void ChangeMarks::show(Row& row) {
  setChangeLine(*row.control, row.line);
  const QString& own = row.ownDescription.isEmpty() ? row.ownToolTip : row.ownDescription;
  row.control->setAccessibleDescription(row.isMarked() ? joinedLines(own, row.line)
                                                       : row.ownDescription);
  if (row.menu) return;
  row.shownToolTip =
      row.isMarked() ? plainToolTip(joinedLines(row.ownToolTip, row.line)) : row.ownToolTip;
  row.control->setToolTip(row.shownToolTip);
}

bool ChangeMarks::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Paint && event->type() != QEvent::ContextMenu) return false;
  return guarded([&] {
    Row* const row = findRow(watched);
    return row != nullptr && handle(*row, *event);
  });
}

bool ChangeMarks::handle(Row& row, QEvent& event) {
  if (event.type() == QEvent::Paint) {
    if (!row.isMarked()) return false;
    static_cast<QObject*>(row.control)->event(&event);
    drawCorner(*row.control);
    return true;
  }
  if (!row.menu) return false;
  auto& field = static_cast<QLineEdit&>(*row.control);
  const auto& request = static_cast<QContextMenuEvent&>(event);
  const bool isByMouse = request.reason() == QContextMenuEvent::Mouse;
  showMenu(*row.menu, field,
           isByMouse ? request.globalPos() : field.mapToGlobal(field.rect().bottomLeft()));
  return true;
}

}  // namespace brennet
