#pragma once

#include <QMessageBox>

namespace brennet {
struct DraggableWindow;
class ScreenFit;
}  // namespace brennet

// The message box of all settings windows: a QMessageBox in the skin, without the system's frame,
// with a title strip of its own. In no namespace: style sheets and catalogues know it by this name.
class CMsgBox : public QMessageBox {
  Q_OBJECT

 public:
  CMsgBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons = NoButton,
          QWidget* parent = nullptr,
          Qt::WindowFlags flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);

  // Shows a box and returns the answer: the button that was clicked, or NoButton when the box was
  // closed by its close button. Return clicks `defaultButton`; without one, the first button that
  // accepts. `moreText` stands below the text, a smaller matter; empty for none.
  static StandardButton showMessage(QWidget* parent, Icon icon, const QString& title,
                                    const QString& text, StandardButtons buttons = Ok,
                                    StandardButton defaultButton = NoButton,
                                    const QString& moreText = {});

  // Gives the standard buttons of the box their texts, and widths to match.
  void setButtonTexts();

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;

 private:
  void applySkin();
  void buildTitleStrip();
  void addText(const QString& moreText);
  void addButtons(StandardButtons buttons, StandardButton defaultButton);
  [[nodiscard]] QWidget* titleStrip() const;
  [[nodiscard]] QWidget* buttonPanel() const;
  [[nodiscard]] brennet::DraggableWindow dragged() const;

  brennet::ScreenFit* fit_ = nullptr;  // a child of this
};
