#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>

#include <functional>
#include <vector>

#include "model/HotkeyConfig.h"
#include "model/SchemeFile.h"
#include "ui/pages/SchemeTransferWindow.h"

class QComboBox;
class QPushButton;

namespace brennet {

// The buttons of a window that give the current setting group away and take another one over: from
// another group, to a file, from a file. The player sees what would change before it does.
class SchemeTransferButtons : public QObject {
  Q_OBJECT

 public:
  struct Controls {
    QComboBox& groups;  // names them, in their order
    QPushButton& copyFrom;
    QPushButton& exportFile;
    QPushButton& importFile;
  };
  // Is told when the current group has been replaced, and by what the player calls that.
  using Replaced = std::function<void(const QString& what)>;

  // All outlive this object. `window` is the parent of the windows that come up.
  SchemeTransferButtons(HotkeyConfig& config, QWidget& window, const Controls& controls,
                        Replaced replaced);

  // To be called when another group has become the current one: without one, there is nothing to
  // give or to replace.
  void refresh();

  // The settings file of the host, which is written when the dialog has ended well: exporting there
  // would replace all groups by one, at once, whatever the player says to the dialog. It is
  // refused.
  void setOwnFile(const QString& fileName) { ownFile_ = fileName; }

  // Shows what the other groups would bring, and takes one over if the player agrees.
  void copyFrom();
  // Writes the current group to a file, or takes over one of a file if the player agrees. A failure
  // is told to the player.
  void exportTo(const QString& fileName);
  void importFrom(const QString& fileName);

 private:
  void offer(const QString& title, std::vector<SchemeOffer> offers);
  [[nodiscard]] static QString failureText(SchemeFileResult::Outcome outcome);
  void tell(QMessageBox::Icon icon, const QString& title, const QString& text,
            const std::u16string& detail = {});

  HotkeyConfig& config_;
  QWidget& window_;
  Controls controls_;
  Replaced replaced_;
  QString ownFile_;
};

}  // namespace brennet
