#pragma once

#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>
#include <utility>

#include "ui/capture/CaptureFields.h"
#include "ui/chat/QuickChatKeyButtons.h"
#include "ui/pages/PresetBoxes.h"
#include "ui/pages/SettingPage.h"

class CCustomMsgTableModel;
class QModelIndex;

namespace Ui {
class CAdvancedSettingWidget;
}

// The advanced page: what the keypad stands for, the quick-chat phrases with their keys, and the
// keys of five features. Every edit is stored in the current scheme at once. In no namespace:
// catalogues know it by this name.
class CAdvancedSettingWidget : public QWidget, public brennet::SettingPage {
  Q_OBJECT

 public:
  // `config` outlives the page.
  CAdvancedSettingWidget(brennet::HotkeyConfig& config, QWidget* parent);
  ~CAdvancedSettingWidget() override;

  // The row of a phrase that the scheme lacks stays as it is.
  void showSettings() override;

  // Calls `follow` when the player has chosen quick-chat key set 0 or 1, or has left it. Not a
  // signal, because clients know the page's signals by their places.
  using Follow = std::function<void(int set, bool isChosen)>;
  void tellOfQuickChatKeys(Follow follow) { followQuickChatKeys_ = std::move(follow); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 public slots:
  void onToggled_GroupKey1(bool bChecked);
  void onToggled_GroupKey2(bool bChecked);
  void onToggled_GroupKey3(bool bChecked);
  void onToggled_ChatKey_1(bool bChecked);
  void onToggled_ChatKey_2(bool bChecked);
  // Stores the phrase of a cell that was edited, cut to its length; the cell keeps the whole text.
  void onDataChanged_Table(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                           const QVector<int>& roles);

 private:
  void buildTable();
  void connectControls();
  void refreshPhrases();
  void toggleQuickChatKeys(int set, bool isChecked);

  brennet::HotkeyConfig& config_;
  std::unique_ptr<Ui::CAdvancedSettingWidget> form_;
  CCustomMsgTableModel* phrases_;  // a child of the page
  bool isFillingTable_ = false;
  brennet::PresetBoxes presets_;
  brennet::QuickChatKeyButtons chatKeys_;
  brennet::CaptureFields keys_;
  Follow followQuickChatKeys_ = [](int, bool) {};
};
