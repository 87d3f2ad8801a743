#pragma once

#include <QLineEdit>

#include <memory>

#include "ui/capture/CaptureFields.h"
#include "ui/chat/QuickChatKeyButtons.h"
#include "ui/pages/SettingPage.h"
#include "ui/window/MovableDialog.h"

class QLineEdit;

namespace Ui {
class ChatKeySettingWidget;
}
namespace brennet {
class SchemeMarks;
}

// The quick-chat dialog: the eight phrases of the current scheme, which OK stores, and the keys
// that send them, which are stored at once. In no namespace: style sheets and catalogues know it by
// this name.
class ChatKeySettingWidget : public brennet::MovableDialog, public brennet::SettingPage {
  Q_OBJECT

 public:
  // `config` outlives the dialog.
  ChatKeySettingWidget(brennet::HotkeyConfig& config, QWidget* parent);
  ~ChatKeySettingWidget() override;

  // The field of a phrase that the scheme lacks shows the same text as the field before it.
  void showSettings() override;

  // Chooses Alt+F1 to Alt+F8 and empties all phrases, in the fields and in the current scheme.
  // If one of these keys is used for something else, the player is told and the choice stays.
  void clearSettings() override;

  // Has the controls marked whose settings have changed since the dialog opened.
  void mark(const brennet::SchemeMarks& marks);

  // Leads the player to a phrase, from 0.
  void leadTo(std::size_t phrase) { field(phrase).setFocus(Qt::OtherFocusReason); }

 protected:
  // Captures keys as the pages do, without a setting to store them in. Installed on nothing: the
  // fields take text.
  bool eventFilter(QObject* watched, QEvent* event) override;

 public slots:
  void onClickedOkBtn();
  void onClickedCancelBtn();
  void onToggled_ChatKey_1(bool bChecked);
  void onToggled_ChatKey_2(bool bChecked);

 private:
  [[nodiscard]] QLineEdit& field(std::size_t phrase) const;

  brennet::HotkeyConfig& config_;
  std::unique_ptr<Ui::ChatKeySettingWidget> form_;
  brennet::QuickChatKeyButtons keyButtons_;
  brennet::CaptureFields capture_;
};
