#pragma once

#include <QWidget>

class QLabel;

// A strip across a window that shows a notice once, until the player closes it. In no namespace:
// style sheets know it by this name.
class CNoticeStrip : public QWidget {
  Q_OBJECT

 public:
  // `text` is shown in as many lines as it takes; `details` are the tool tip, and are what
  // assistive technology reads. Both are plain text, even if they look like markup.
  CNoticeStrip(const QString& text, const QString& details, QWidget* parent);

 signals:
  // The player has closed it. It is hidden, and stays so.
  void closed();
};
