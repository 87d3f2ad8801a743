#pragma once

#include <QWidget>

#include <memory>
#include <vector>

#include "ui/capture/CaptureFields.h"
#include "ui/pages/SettingPage.h"

class CCustomLineEdit;
class QTreeWidgetItem;

namespace Ui {
class CChatRouletteSettingWidget;
}

// The chat wheel page: the eight phrases of the current scheme around a wheel, ready-made phrases
// to click or to drag onto them, and the key that opens the wheel in game. All changes are stored
// at once. In no namespace: the style sheet and catalogues know it by this name.
class CChatRouletteSettingWidget : public QWidget, public brennet::SettingPage {
  Q_OBJECT

 public:
  // `config` outlives the page.
  CChatRouletteSettingWidget(brennet::HotkeyConfig& config, QWidget* parent);
  ~CChatRouletteSettingWidget() override;

  // The field of a phrase that the scheme lacks stays as it is.
  void showSettings() override;

  // Gives the keyboard to the first part of the page that takes it.
  void focusFirst();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  // Accepts every drag, so that the mouse pointer shows on the whole page that there is a place to
  // drop.
  void dragEnterEvent(QDragEnterEvent* event) override;

 public slots:
  // Stores the text of the field that sent the signal, cut to the length of a phrase.
  void OnChatPhraseChanged();
  // Puts the phrase into the slot that has the focus, if there is one.
  void onChatPhraseSelected(QTreeWidgetItem* item, int col);
  void onToggled_ShowFMana(bool bChecked);

 private:
  void makeSlots();
  void fillTree();
  void connectAll();

  brennet::HotkeyConfig& config_;
  std::unique_ptr<Ui::CChatRouletteSettingWidget> form_;
  std::vector<CCustomLineEdit*> slots_;
  brennet::CaptureFields capture_;
};
