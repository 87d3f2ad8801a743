#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

namespace brennet::shots {

// A window to take a picture of, under the name of its file.
struct Shot {
  QString name;
  std::function<std::unique_ptr<QWidget>()> make;
};

// A page with the skin, on the background of the settings dialog.
[[nodiscard]] std::unique_ptr<QWidget> inDialog(const std::function<QWidget*(QWidget*)>& makePage);

// The settings dialog, for screens on which its page scrolls.
[[nodiscard]] QList<Shot> scrolledShots();

// One function for each kind of window; main.cpp calls all of them.
[[nodiscard]] QList<Shot> basicShots();
[[nodiscard]] QList<Shot> boxShots();
[[nodiscard]] QList<Shot> chatShots();
[[nodiscard]] QList<Shot> controlShots();
[[nodiscard]] QList<Shot> dialogShots();
[[nodiscard]] QList<Shot> dota7Shots();
[[nodiscard]] QList<Shot> keyMapShots();
[[nodiscard]] QList<Shot> transferShots();
[[nodiscard]] QList<Shot> wheelShots();

}  // namespace brennet::shots
