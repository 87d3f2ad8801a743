#pragma once

#include <QWidget>

#include <memory>
#include <vector>

#include "gameside/dota7/Dota7Values.h"
#include "ui/capture/Dota7KeyFields.h"
#include "ui/pages/SettingPage.h"

namespace Ui {
class CDotA7BasicSetting;
}
namespace brennet {
class Dota7Marks;
}
class QAbstractButton;

// The page of the DotA 7 mode: keys and options that the map reads from the registry. Each change
// is there at once. In no namespace: catalogues know it by this name.
class CDotA7BasicSetting : public QWidget, public brennet::SettingPage {
  Q_OBJECT

 public:
  // `manager` outlives the page, as does `config`, whose chat wheel loses its key to a paste;
  // `config` may be null. Reads the registry; the cast mode is the normal one.
  CDotA7BasicSetting(brennet::Dota7KeyInfoManager& manager, QWidget* parent,
                     brennet::HotkeyConfig* config = nullptr);
  ~CDotA7BasicSetting() override;

  // Reads the registry again and shows what it holds. What was recorded is already in the registry;
  // Cancel can still undo it.
  void showSettings() override;
  // Gives all keys and options their defaults: no key, off, normal cast.
  void clearSettings() override;

  // Has the controls marked whose settings have changed since the dialog opened.
  void mark(const brennet::Dota7Marks& marks);

  // Leads the player to the field of a key.
  void leadTo(const brennet::Dota7KeyField& row) { fields_.leadTo(row); }

 signals:
  void showDota7HotKeySettingDlg();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 public slots:
  void onClickedDota7HotKeySettingBtn();
  void onClickedSLegacyKeys();
  void onClickedSCtrlLearnAbility();
  void onClickedLegacyOnlyQuickCast();
  void onClickedSDoubleClickHero();
  void onClickedNormal();
  void onClickedQuickUse();

 private:
  void buildRows();
  void connectButtons();
  void setCast(brennet::Dota7Cast cast);
  void showValues();
  void store(const QAbstractButton& box);

  brennet::Dota7KeyInfoManager& manager_;
  std::unique_ptr<Ui::CDotA7BasicSetting> form_;
  brennet::Dota7KeyFields fields_;
};
