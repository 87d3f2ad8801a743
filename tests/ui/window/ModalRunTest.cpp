// A modal run ends, in whichever way its window goes.

#include "ui/window/ModalRun.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>
#include <stdexcept>

namespace brennet::test {
namespace {

TEST(ModalRun, EndsWhenItsWindowGoes) {
  struct {
    const char* name;
    void (*end)(QDialog&);
    int result;
  } const kRows[] = {
      {"accept", [](QDialog& dialog) { dialog.accept(); }, QDialog::Accepted},
      {"reject", [](QDialog& dialog) { dialog.reject(); }, QDialog::Rejected},
      {"done", [](QDialog& dialog) { dialog.done(7); }, 7},
      {"hide", [](QDialog& dialog) { dialog.hide(); }, QDialog::Rejected},
      {"close", [](QDialog& dialog) { dialog.close(); }, QDialog::Rejected},
      {"close all", [](QDialog&) { QApplication::closeAllWindows(); }, QDialog::Rejected},
  };
  for (const auto& row : kRows) {
    QDialog dialog;
    dialog.setResult(QDialog::Accepted);  // as if from an earlier run
    QTimer::singleShot(0, &dialog, [&] {
      EXPECT_EQ(QApplication::activeModalWidget(), &dialog) << row.name;
      row.end(dialog);
    });
    EXPECT_EQ(runModal(dialog), row.result) << row.name;
    EXPECT_FALSE(dialog.isVisible()) << row.name;
  }
}

TEST(ModalRun, EndsWhenItsWindowIsDeleted) {
  auto* const dialog = new QDialog;
  QTimer::singleShot(0, dialog, [dialog] { delete dialog; });
  EXPECT_EQ(runModal(*dialog), QDialog::Rejected);
}

TEST(ModalRun, EndsBeforeItBeginsWhereItsWindowHidesAtOnce) {
  class Shy : public QDialog {
    void showEvent(QShowEvent* /*event*/) override { hide(); }
  };
  Shy dialog;
  EXPECT_EQ(runModal(dialog), QDialog::Rejected);
}

TEST(ModalRun, CanBeRepeated) {
  QDialog dialog;
  for (int round = 1; round <= 3; ++round) {
    QTimer::singleShot(0, &dialog, [&] { dialog.done(round); });
    EXPECT_EQ(runModal(dialog), round);
  }
}

TEST(ModalRun, LeavesOtherWindowsAsTheyWereModal) {
  QDialog dialog;
  QTimer::singleShot(0, &dialog, [&] {
    EXPECT_EQ(dialog.windowModality(), Qt::ApplicationModal);
    dialog.accept();
  });
  runWindow(dialog);
  EXPECT_EQ(dialog.windowModality(), Qt::NonModal);
}

TEST(ModalRun, LetsItsWindowGoThatCannotBeShown) {
  class Failing : public QDialog {
   public:
    void setVisible(bool visible) override {
      if (visible) throw std::runtime_error("out of luck");
      QDialog::setVisible(visible);
    }
  };
  auto dialog = std::make_unique<Failing>();
  EXPECT_THROW(runModal(*dialog), std::runtime_error);
  dialog.reset();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace brennet::test
