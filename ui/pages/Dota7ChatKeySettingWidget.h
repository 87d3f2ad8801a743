#pragma once

#include <memory>

#include "ui/capture/Dota7KeyFields.h"
#include "ui/pages/SettingPage.h"
#include "ui/window/MovableDialog.h"

namespace Ui {
class Dota7ChatKeySettingWidget;
}
namespace brennet {
class Dota7Marks;
}

// The chat dialog of the DotA 7 mode: phrases that keys send, and phrases that are sent when a game
// starts. Phrases are stored when the owner asks for it, keys at once. In no namespace: style
// sheets and catalogues know it by this name.
class Dota7ChatKeySettingWidget : public brennet::MovableDialog, public brennet::SettingPage {
  Q_OBJECT

 public:
  // `manager` outlives the dialog, as does `config`, whose chat wheel loses its key to a paste;
  // `config` may be null. Reads the registry.
  Dota7ChatKeySettingWidget(brennet::Dota7KeyInfoManager& manager, QWidget* parent,
                            brennet::HotkeyConfig* config = nullptr);
  ~Dota7ChatKeySettingWidget() override;

  // Reads the phrases and their keys from the registry again.
  void showSettings() override;
  // Writes the phrases as the fields have them.
  void savePhrases();

  // Has the controls marked whose settings have changed since the dialog opened.
  void mark(const brennet::Dota7Marks& marks);

  // Leads the player to the field of a key.
  void leadTo(const brennet::Dota7KeyField& row) { keys_.leadTo(row); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 public slots:
  void onClickedOkBtn();
  void onClickedCancelBtn();

 private:
  void buildRows();

  brennet::Dota7KeyInfoManager& manager_;
  std::unique_ptr<Ui::Dota7ChatKeySettingWidget> form_;
  brennet::Dota7KeyFields keys_;
};
