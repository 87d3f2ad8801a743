// A whole host: loads the library, hands over the player's settings file, shows the record for the
// game, opens the settings dialog and takes back what was changed in game.
//
//   minimal-host LIBRARY SETTINGS_FILE DATA_FOLDER [--no-window]

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLibrary>
#include <QPushButton>
#include <QVBoxLayout>

#include <brennet/HotkeyBlock.h>
#include <brennet/IBrennet.h>

#include <cstdint>
#include <cstdio>
#include <ctime>

namespace {

std::uint32_t now() {
  return static_cast<std::uint32_t>(std::time(nullptr));
}

// The record that the game gets. The library has to be told how much memory there is.
brennet::HotkeyBlock recordOf(brennet::IBrennet& brennet) {
  brennet::HotkeyBlock record = {};
  record.size = sizeof(record);
  brennet.FillHotkeyBlock(&record);
  return record;
}

bool isSwitchedOn(const brennet::HotkeyBlock& record) {
  return (record.flags >> 31) != 0;
}

QString summary(brennet::IBrennet& brennet) {
  const brennet::HotkeyBlock record = recordOf(brennet);
  int bound = 0;
  for (const std::uint16_t key : record.itemKeys) bound += key != 0 ? 1 : 0;
  return QStringLiteral("Hotkeys are %1; %2 of 6 item keys are bound; saved at %3.")
      .arg(isSwitchedOn(record) ? QStringLiteral("on") : QStringLiteral("off"))
      .arg(bound)
      .arg(brennet.GetLastSaveTime());
}

// A window as a client might have it.
class Window : public QWidget {
 public:
  explicit Window(brennet::IBrennet& brennet) : brennet_(brennet) {
    setLayout(new QVBoxLayout);
    auto* const settings = new QPushButton(QStringLiteral("Hotkeys..."));
    auto* const game = new QPushButton(QStringLiteral("Zoom out in game"));
    for (QWidget* const widget : {static_cast<QWidget*>(&enabled_), static_cast<QWidget*>(settings),
                                  static_cast<QWidget*>(game), static_cast<QWidget*>(&text_)}) {
      layout()->addWidget(widget);
    }
    connect(&enabled_, &QCheckBox::clicked, this, [this](bool isOn) {
      if (!brennet_.SetEnabled(isOn, now())) std::fputs("The settings were not saved.\n", stderr);
      refresh();
    });
    connect(settings, &QPushButton::clicked, this, [this] {
      bool isSaved = false;
      const bool isConfirmed = brennet_.ShowSettingsDialog(&isSaved, now());
      if (isConfirmed && !isSaved) std::fputs("The settings were not saved.\n", stderr);
      refresh();
    });
    connect(game, &QPushButton::clicked, this, [this] {
      // What the game has changed comes back in the record that it got.
      brennet::HotkeyBlock record = recordOf(brennet_);
      record.zoomValue = static_cast<std::uint8_t>(record.zoomValue == 120 ? 90 : 120);
      if (brennet_.ApplyHotkeyBlock(&record, now()) != 0) std::fputs("Not applied.\n", stderr);
      refresh();
    });
    refresh();
  }

 private:
  void refresh() {
    text_.setText(summary(brennet_));
    enabled_.setChecked(isSwitchedOn(recordOf(brennet_)));
  }

  brennet::IBrennet& brennet_;
  QCheckBox enabled_{QStringLiteral("Hotkeys in game")};
  QLabel text_;
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 4) {
    std::fputs("usage: minimal-host LIBRARY SETTINGS_FILE DATA_FOLDER [--no-window]\n", stderr);
    return 2;
  }
  // The library stays loaded: the object lives in it.
  QLibrary library(arguments[1]);
  const auto getBrennet =
      reinterpret_cast<brennet::GetBrennetPtrFunction>(library.resolve("GetBrennetPtr"));
  if (getBrennet == nullptr) {
    std::fprintf(stderr, "%s\n", qPrintable(library.errorString()));
    return 1;
  }
  brennet::IBrennet& brennet = *getBrennet();
  brennet.SetDataFolder(arguments[3].toStdWString().c_str());
  if (!brennet.LoadSettings(arguments[2].toStdWString().c_str())) {
    std::fputs("The settings could not be loaded; the defaults are in place.\n", stderr);
  }
  std::printf("%s\n", qPrintable(summary(brennet)));
  if (arguments.contains(QStringLiteral("--no-window"))) return 0;
  Window window(brennet);
  window.show();
  return QApplication::exec();
}
