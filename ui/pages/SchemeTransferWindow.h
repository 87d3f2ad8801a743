#pragma once

#include <QString>

#include <memory>
#include <vector>

#include "model/SchemeTransfer.h"
#include "ui/window/MovableDialog.h"

namespace Ui {
class SchemeTransferWindow;
}

namespace brennet {

// A setting group whose settings the player may take over.
struct SchemeOffer {
  QString name;  // as the player knows the group
  SchemeTransfer transfer;
};

}  // namespace brennet

// Shows what would change in the current setting group if it took over another one, and what would
// be refused, before anything is changed. Changes nothing itself: it is accepted when the player
// agrees. In no namespace: style sheets and catalogues know it by this name.
class SchemeTransferWindow : public brennet::MovableDialog {
  Q_OBJECT

 public:
  // `current` is the group as it is, one `offers` at least; the first is shown.
  SchemeTransferWindow(const QString& title, const brennet::HotkeyScheme& current,
                       std::vector<brennet::SchemeOffer> offers, QWidget* parent);
  ~SchemeTransferWindow() override;

  // The group that is shown.
  [[nodiscard]] const brennet::SchemeOffer& chosen() const;

 private:
  void showEvent(QShowEvent* event) override;
  void showOffer();
  void fitColumns();
  void addRow(const brennet::TransferRow& row);

  std::unique_ptr<Ui::SchemeTransferWindow> form_;
  brennet::HotkeyScheme current_;
  std::vector<brennet::SchemeOffer> offers_;
};
