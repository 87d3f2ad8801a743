#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class COrrerySettingDlg;
}
namespace brennet {
class ScreenFit;
}
class QCheckBox;

// The keys of the Ledger panel and the switch for allied mana: a small window beside the settings.
// The basic page owns it, captures its keys and stores them.
class COrrerySettingDlg : public QDialog {
  Q_OBJECT

 public:
  explicit COrrerySettingDlg(QWidget* parent = nullptr);
  ~COrrerySettingDlg() override;

  // The switch for allied mana, which the basic page stores.
  [[nodiscard]] QCheckBox& manaBox() const;
  // Whether keys and switch can be changed.
  void setEditable(bool isEditable);

 signals:
  // The check box of this name was toggled.
  void chkShowFriendsMana(bool s);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;
  void showEvent(QShowEvent* event) override;

 private:
  std::unique_ptr<Ui::COrrerySettingDlg> form_;
  brennet::ScreenFit* fit_ = nullptr;  // a child of this
};
