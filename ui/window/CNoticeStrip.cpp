#include "ui/window/CNoticeStrip.h"

#include <QHBoxLayout>
#include <QLabel>

#include "ui/window/CPictureButton.h"
#include "ui/window/Text.h"

CNoticeStrip::CNoticeStrip(const QString& text, const QString& details, QWidget* parent)
    : QWidget(parent) {
  setAttribute(Qt::WA_StyledBackground);
  auto* const label = new QLabel(text);
  label->setObjectName(QStringLiteral("lblNotice"));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  // As wide as the window would be without it.
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
  label->setToolTip(brennet::plainToolTip(details));
  label->setAccessibleDescription(details);

  auto* const close = new CPictureButton;
  close->setObjectName(QStringLiteral("btnCloseNotice"));
  close->setToolTip(tr("关闭提示"));
  close->setAccessibleName(close->toolTip());
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, [this] {
    hide();
    emit closed();
  });

  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(10, 4, 10, 4);  // like the title above
  row->addWidget(label, 1);
  row->addWidget(close, 0, Qt::AlignTop);
}
