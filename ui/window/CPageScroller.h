#pragma once

#include <QScrollArea>

// Holds the page of a window and is as large as the page, so that nothing scrolls, unless the
// window may not be that large: then there are scroll bars. What gets the focus by the keyboard is
// scrolled into view. In no namespace: forms and style sheets know it by this name.
class CPageScroller : public QScrollArea {
  Q_OBJECT

 public:
  explicit CPageScroller(QWidget* parent = nullptr);
  ~CPageScroller() override;

  // The largest size that it may ask for, scroll bars included, in pixels.
  void setLimit(QSize limit);

  // The size of the page, plus a scroll bar where the other direction needs one, within the limit.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showFocus(QWidget* focus);

  QSize limit_{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
  QMetaObject::Connection focus_;  // to the application's focus signal
};
