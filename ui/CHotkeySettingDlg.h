#pragma once

#include <QDialog>

#include <memory>
#include <string_view>
#include <vector>

#include "ui/keymap/KeyMap.h"

namespace Ui {
class CHotkeySettingDlg;
}
namespace brennet {
class ChangeMarks;
class Dota7KeyInfoManager;
struct DraggableWindow;
class EditHistory;
struct EditStep;
class EventGuard;
class HotkeyConfig;
struct LoadReport;
class SchemeTransferButtons;
class ScreenFit;
class SettingPage;
class UndoButtons;
}  // namespace brennet
class CAdvancedSettingWidget;
class CBasicSetting7Widget;
class CBasicSettingWidget;
class CChatRouletteSettingWidget;
class CDotA7BasicSetting;
class ChatKeySettingWidget;
class Dota7ChatKeySettingWidget;
class KeyMapWindow;
class QLabel;
class QStackedLayout;

// The settings dialog. Its pages write each change into the configuration, or into the registry, at
// once; OK keeps what is in the registry and Cancel undoes it. The caller decides what happens to
// the configuration. In no namespace: style sheets and catalogues know it by this name.
class CHotkeySettingDlg : public QDialog {
  Q_OBJECT

 public:
  // Both outlive the dialog.
  CHotkeySettingDlg(brennet::HotkeyConfig& config, brennet::Dota7KeyInfoManager& manager);
  ~CHotkeySettingDlg() override;

  // Where the host keeps Tollamere.reg, the DotA 7 keys of a new player; with or without a path
  // separator at its end. They are imported if the registry has none. If that fails, the DotA 7
  // mode is not offered.
  void setDataFolder(std::u16string_view folder);

  // Tells the player, in a strip below the title that can be closed, which keys of the settings
  // could not be used; does nothing if there are none.
  void tellDroppedKeys(const brennet::LoadReport& report);

  // Gives setting groups away and takes them over, as the player's buttons do.
  [[nodiscard]] brennet::SchemeTransferButtons& transfers() { return *transfers_; }

  void setVisible(bool isVisible) override;

  // The registry gets back what it had, as it does when the dialog goes without an answer.
  void reject() override;

 signals:
  void resetSetting();
  void useRecommendedSetting();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;
  void showEvent(QShowEvent* event) override;

 public slots:
  void onSwitchSettingUI();
  void onSwitchBasicSettingUI();
  void onSwitchAdvancedSettingUI();
  void onSwitchChatWheelSettingUI();
  void onClickedOkBtn();
  void onClickedCancelBtn();
  void onToggled_UseHotkeySettings(bool bChecked);
  void onResetSetting();
  void onUseRecommendedSetting();
  void onCurrentIndexChanged_HotkeySetting(int index);
  void onShowHotKeySettingDlg();
  void onSwitchPlatKeySettingDlg();
  void onSwitchDota7KeySettingDlg();
  void onShowDota7HotKeySettingDlg();

 private:
  enum class Mode { Platform = 1, Dota7 = 2 };

  // A page that shows what is chosen in the dialog, and the mode that it belongs to.
  struct Page {
    brennet::SettingPage* page;
    Mode mode;
  };

  void createPages();
  void fillForm();
  void connectForm();
  void connectPages();
  void rememberSteps();
  void markChanges();
  void offerTransfers();
  void setMode(Mode mode);
  void leaveField();
  [[nodiscard]] bool isLinkClicked(const QLabel& link, const QEvent& event);
  [[nodiscard]] bool applySkin();
  void fitToSkin();
  void showSettings();
  void showChoice();
  void showStep(const brennet::EditStep& step);
  [[nodiscard]] brennet::KeyMap shownKeys();
  void showKeyMap();
  void leadTo(const brennet::MapTarget& target);
  void clearSettings(Mode mode, const brennet::SettingPage* spared = nullptr);
  [[nodiscard]] bool isConfirmed(int icon, const QString& title, const QString& question);
  [[nodiscard]] brennet::DraggableWindow dragged() const;

  std::unique_ptr<brennet::EventGuard> guard_;
  brennet::HotkeyConfig& config_;
  brennet::Dota7KeyInfoManager& manager_;
  std::unique_ptr<Ui::CHotkeySettingDlg> form_;
  std::unique_ptr<brennet::EditHistory> history_;
  std::unique_ptr<brennet::ChangeMarks> marks_;
  std::unique_ptr<brennet::UndoButtons> undoButtons_;
  std::unique_ptr<brennet::SchemeTransferButtons> transfers_;
  QStackedLayout* stack_ = nullptr;
  // Children of this widget.
  brennet::ScreenFit* fit_ = nullptr;
  CAdvancedSettingWidget* advanced_ = nullptr;
  CBasicSettingWidget* olderBasic_ = nullptr;
  CBasicSetting7Widget* basic_ = nullptr;
  CChatRouletteSettingWidget* chatWheel_ = nullptr;
  CDotA7BasicSetting* dota7_ = nullptr;
  ChatKeySettingWidget* quickChat_ = nullptr;
  Dota7ChatKeySettingWidget* dota7Chat_ = nullptr;
  KeyMapWindow* keyMap_ = nullptr;  // made when it is first asked for
  std::vector<Page> pages_;
  Mode mode_ = Mode::Platform;
  bool isFirstShow_ = true;
  const QLabel* keyIsDownOn_ = nullptr;  // the link on which Space or Enter was pressed
};
