// The chat wheel page: as it comes up, in a wide window, and with letters of double size.

#include <QApplication>
#include <QVBoxLayout>

#include "tests/ui/shots/Shots.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/window/StyleSheet.h"

namespace brennet::shots {
namespace {

constexpr int kLetters = 12;  // pixels, as Windows has them

// The page refers to the settings as long as it is shown.
class Window : public QWidget {
 public:
  Window(const HotkeyConfig& settings, int letters)
      : settings_(settings), font_(QApplication::font()) {
    QFont font = font_;
    font.setPixelSize(letters);
    QApplication::setFont(font);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x1e, 0x24, 0x2f));
    setPalette(palette);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new CChatRouletteSettingWidget(settings_, this));
    loadStyleSheet(*this, QStringLiteral(":/skin/war3key.qss"));
    resize(sizeHint());
  }

  ~Window() override {
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    QApplication::setFont(font_);
  }

 private:
  HotkeyConfig settings_;
  QFont font_;  // the application's, before
};

HotkeyConfig someSettings() {
  HotkeyConfig settings;
  HotkeyScheme& scheme = *settings.editableScheme();
  const char* const some[] = {"gank", "withdraw", "steady",
                              "push line respectively,run in danger "};
  std::size_t n = 0;
  for (const char* const key : some) {
    const QString phrase = QCoreApplication::translate("CChatRouletteSettingWidget", key);
    scheme.ChatWheel[2 * n++].emplace(phrase.toStdU16String());
  }
  scheme.ChatWheelkey = KeyWord('Y', KeyWord::kCtrl | KeyWord::kAlt);
  return settings;
}

std::unique_ptr<QWidget> makeWheel() {
  return std::make_unique<Window>(someSettings(), kLetters);
}

std::unique_ptr<QWidget> makeWideWheel() {
  auto window = makeWheel();
  window->resize(1200, 800);
  return window;
}

std::unique_ptr<QWidget> makeLargeWheel() {
  return std::make_unique<Window>(someSettings(), 2 * kLetters);
}

}  // namespace

QList<Shot> wheelShots() {
  return {{QStringLiteral("wheel"), makeWheel},
          {QStringLiteral("wheel-wide"), makeWideWheel},
          {QStringLiteral("wheel-large"), makeLargeWheel}};
}

}  // namespace brennet::shots
