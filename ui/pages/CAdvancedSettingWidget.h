#pragma once

#include <QVector>
#include <QWidget>

#include <memory>

#include "ui/capture/CaptureFields.h"
#include "ui/chat/QuickChatKeyButtons.h"
#include "ui/pages/PresetBoxes.h"

class CCustomMsgTableModel;
class QModelIndex;

namespace Ui {
class CAdvancedSettingWidget;
}

// The advanced page: what the keypad stands for, the quick-chat phrases with their keys, and the
// keys of five features. Every edit is stored in the current scheme at once. In no namespace:
// catalogues of translations know it by this name.
class CAdvancedSettingWidget : public QWidget {
  Q_OBJECT

 public:
  // `config` outlives the page.
  CAdvancedSettingWidget(brennet::HotkeyConfig& config, QWidget* parent);
  ~CAdvancedSettingWidget() override;

  // Shows the current scheme. Stores nothing. The row of a phrase that the scheme lacks stays as it
  // is.
  void refresh();

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

  brennet::HotkeyConfig* config_;
  std::unique_ptr<Ui::CAdvancedSettingWidget> ui_;
  CCustomMsgTableModel* phrases_;  // a child of the page
  bool isFillingTable_ = false;
  brennet::PresetBoxes presets_;
  brennet::QuickChatKeyButtons chatKeys_;
  brennet::CaptureFields keys_;
};
