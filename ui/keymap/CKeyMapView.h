#pragma once

#include <QWidget>

#include <optional>

#include "ui/keymap/KeyMap.h"

// The drawn keyboard: one widget for all keys. While it has the keyboard, every key that is pressed
// is shown instead of acted upon, and a held Ctrl or Alt shows its layer; Shift+Tab goes on to the
// next control. In no namespace: forms know it by this name.
class CKeyMapView : public QWidget {
  Q_OBJECT

 public:
  explicit CKeyMapView(QWidget* parent = nullptr);

  // `map` outlives the view, or is replaced before it goes.
  void setMap(const brennet::KeyMap& map, bool isDota7);
  // The layer that is shown while neither Ctrl nor Alt is held.
  void setLayer(std::uint8_t layer);
  // Makes a key stand out, in its layer.
  void light(brennet::MapPress press);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

  // Where a key is drawn, in pixels; empty if the keyboard lacks it.
  [[nodiscard]] QRect placeOf(brennet::MapCode code) const;

 signals:
  // A key was pressed, or the wheel was turned or clicked.
  void pressed(int code, int modifiers);
  // A key of the shown layer was clicked.
  void clicked(int code, int modifiers);
  void layerShown(int layer);

 protected:
  bool event(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  [[nodiscard]] std::uint8_t shownLayer() const { return held_ != 0 ? held_ : layer_; }
  [[nodiscard]] const brennet::MapKey* keyAt(QPointF place) const;
  void hold(std::uint8_t modifiers);
  void press(brennet::MapPress press);
  [[nodiscard]] bool isUsed(brennet::MapPress press) const;

  const brennet::KeyMap* map_ = nullptr;
  bool isDota7_ = false;
  std::uint8_t layer_ = 0;
  std::uint8_t held_ = 0;
  int turned_ = 0;  // of the wheel, in eighths of a degree, since its last step
  std::optional<brennet::MapPress> lit_;
};
