#pragma once

#include <memory>
#include <optional>

#include "ui/keymap/KeyMap.h"
#include "ui/window/MovableDialog.h"

namespace Ui {
class KeyMapWindow;
}
class QTreeWidgetItem;

// Shows which keys are in use, on a drawn keyboard and in a list, and what any key would do in the
// game when it is pressed. Changes nothing. It is accepted when the player chooses a use, to be led
// to the field where it is set. In no namespace: style sheets and catalogues know it by this name.
class KeyMapWindow : public brennet::MovableDialog {
  Q_OBJECT

 public:
  explicit KeyMapWindow(QWidget* parent);
  ~KeyMapWindow() override;

  // What is shown from now on. Nothing is lit or chosen.
  void setMap(brennet::KeyMap map, bool isDota7);

  // Where the use is set that the player has chosen; nothing if he has chosen none.
  [[nodiscard]] const std::optional<brennet::MapTarget>& chosen() const { return chosen_; }

  // Writes the picture of the map as a PNG file. Returns the system's error; it is empty if the
  // file is there.
  [[nodiscard]] QString savePicture(const QString& fileName) const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void connectForm();
  void fillList();
  void filterList();
  void showText();
  void showStory(brennet::MapPress press);
  void choose(const brennet::MapUse& use);
  void clickKey(brennet::MapPress press);
  void lightRow(const QTreeWidgetItem* item);
  void copyPicture() const;
  void askAndSavePicture();

  std::unique_ptr<Ui::KeyMapWindow> form_;
  brennet::KeyMap map_;
  bool isDota7_ = false;
  QString text_;  // what is told below the keyboard
  std::optional<brennet::MapTarget> chosen_;
};
