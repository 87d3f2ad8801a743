#include "ui/capture/HolderOutline.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

#include <utility>

namespace brennet {
namespace {

// Style sheets look at properties only when a widget is polished.
void setOutlined(QWidget& field, bool isOutlined) {
  field.setProperty("holdsKey", isOutlined);
  field.style()->unpolish(&field);
  field.style()->polish(&field);
}

}  // namespace

void HolderOutline::show(std::vector<QWidget*> fields) {
  for (QWidget* const field : std::exchange(outlined_, {})) setOutlined(*field, false);
  outlined_ = std::move(fields);
  for (QWidget* const field : outlined_) setOutlined(*field, true);
}

}  // namespace brennet
