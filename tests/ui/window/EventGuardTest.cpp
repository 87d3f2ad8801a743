// Nothing that events throw gets into Qt; everything else is as without a guard.

#include "ui/window/EventGuard.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <new>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/support/ToleratedLeaks.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/window/ModalRun.h"

namespace brennet::test {
namespace {

[[noreturn]] void runOut() {
  throw std::bad_alloc();
}

class GuardedDialog : public QDialog {
 public:
  GuardedDialog() : guard_(*this) {}
  [[nodiscard]] const EventGuard& guard() const { return guard_; }

 private:
  EventGuard guard_;
};

// A widget that fails in its event of one type.
class FailingWidget : public QWidget {
 public:
  FailingWidget(QEvent::Type type, QWidget* parent) : QWidget(parent), type_(type) {
    setFixedSize(20, 20);
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() == type_) runOut();
    return QWidget::event(event);
  }

 private:
  QEvent::Type type_;
};

void whenItRuns(QDialog& dialog, const std::function<void()>& act) {
  QTimer::singleShot(0, &dialog, act);
}

// Ends a modal run that nothing else ends; it would stop all tests.
void whenItHangs(QDialog& dialog) {
  constexpr int kPatienceMs = 20'000;
  QTimer::singleShot(kPatienceMs, &dialog, [&dialog] { dialog.done(-1); });
}

TEST(EventGuardRun, EndsWithoutResultWhereAnEventFails) {
  for (const QEvent::Type type :
       {QEvent::Polish, QEvent::Show, QEvent::Resize, QEvent::Paint, QEvent::User}) {
    GuardedDialog dialog;
    auto* const failing = new FailingWidget(type, &dialog);
    (new QVBoxLayout(&dialog))->addWidget(failing);
    QCoreApplication::postEvent(failing, new QEvent(QEvent::User));
    whenItHangs(dialog);
    EXPECT_EQ(runModal(dialog), QDialog::Rejected) << type;
    EXPECT_TRUE(dialog.guard().hasFailed()) << type;
    EXPECT_FALSE(dialog.isVisible()) << type;
  }
}

TEST(EventGuardRun, EndsWithoutResultWhereASlotFails) {
  const ToleratedLeaks ofTheButton;
  GuardedDialog dialog;
  QPushButton button(&dialog);
  QObject::connect(&button, &QPushButton::clicked, &dialog, [] { runOut(); });
  QTimer timer(&dialog);
  QObject::connect(&timer, &QTimer::timeout, &button, [&button] { button.click(); });
  timer.start(0);
  whenItHangs(dialog);
  EXPECT_EQ(runModal(dialog), QDialog::Rejected);
}

TEST(EventGuardRun, EndsWithTheOnesBelow) {
  GuardedDialog dialog;
  QDialog inner(&dialog);
  new FailingWidget(QEvent::Paint, &inner);
  int answer = QDialog::Accepted;
  whenItRuns(dialog, [&] { answer = runWindow(inner); });
  whenItHangs(dialog);
  EXPECT_EQ(runModal(dialog), QDialog::Rejected);
  EXPECT_EQ(answer, QDialog::Rejected);
  EXPECT_FALSE(inner.isVisible());
}

TEST(EventGuardRun, DoesNotBeginAfterAFailure) {
  GuardedDialog dialog;
  FailingWidget failing(QEvent::User, &dialog);
  QEvent event(QEvent::User);
  QCoreApplication::sendEvent(&failing, &event);
  bool isShown = false;
  whenItRuns(dialog, [&] { isShown = true; });
  EXPECT_EQ(runModal(dialog), QDialog::Rejected);
  EXPECT_FALSE(isShown);
}

TEST(EventGuardRun, KeepsAConfirmationThatWasThereBefore) {
  GuardedDialog dialog;
  FailingWidget failing(QEvent::Hide, &dialog);
  whenItRuns(dialog, [&] {
    dialog.setResult(QDialog::Accepted);
    dialog.accept();
  });
  EXPECT_EQ(runModal(dialog), QDialog::Accepted);
}

void type(QWidget& field) {
  QKeyEvent event(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QCoreApplication::sendEvent(&field, &event);
}

TEST(EventGuard, LeavesKeysThatNobodyTakesToTheParents) {
  class Window : public GuardedDialog {
   public:
    int keys = 0;

   protected:
    void keyPressEvent(QKeyEvent* /*event*/) override { ++keys; }
  };
  Window window;
  QWidget plain(&window);
  QLineEdit field(&plain);
  for (const auto& [receiver, expected] :
       {std::pair<QWidget*, int>{&plain, 1}, {&field, 0}, {&window, 1}}) {
    window.keys = 0;
    type(*receiver);
    EXPECT_EQ(window.keys, expected);
  }
  EXPECT_EQ(field.text(), QStringLiteral("x"));
}

class TakesAllKeys : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    return event->type() == QEvent::KeyPress;
  }
};

// Also when an object gets another parent after its filters.
TEST(EventGuard, ComesBehindAllOtherEventFilters) {
  TakesAllKeys filter;
  GuardedDialog dialog;
  QWidget place(&dialog);
  QLineEdit field(&dialog);
  field.installEventFilter(&filter);
  type(field);
  field.setParent(&place);
  type(field);
  EXPECT_EQ(field.text(), QString());
}

TEST(EventGuard, IsThereForWhatIsPutIntoAWindow) {
  GuardedDialog dialog;
  QWidget page;
  const QLineEdit field(&page);
  QComboBox choice(&page);
  const QWidget* const list = choice.view()->viewport();
  page.setParent(&dialog);
  EXPECT_TRUE(dialog.guard().watches(page));
  EXPECT_TRUE(dialog.guard().watches(field));
  EXPECT_TRUE(dialog.guard().watches(choice));
  EXPECT_FALSE(dialog.guard().watches(*list)) << "it has event filters of Qt";
  page.setParent(nullptr);
}

TEST(EventGuard, LetsItsObjectsGo) {
  GuardedDialog dialog;
  const QPointer<QWidget> child = new QWidget(&dialog);
  child->deleteLater();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(child.isNull());
}

TEST(EventGuard, IsThereForWhatQtCallsPastIt) {
  EXPECT_EQ(guarded([] { return 7; }), 7);
  EXPECT_THROW(guarded([] { runOut(); }), std::bad_alloc) << "without one";
  {
    GuardedDialog outer;
    {
      const GuardedDialog inner;
      EXPECT_EQ(guarded([]() -> int { runOut(); }), 0);
      EXPECT_TRUE(inner.guard().hasFailed());
    }
    EXPECT_FALSE(outer.guard().hasFailed());
    EXPECT_EQ(EventGuard::current(), &outer.guard());
  }
  EXPECT_EQ(EventGuard::current(), nullptr);
}

TEST(EventGuardOfTheSettingsDialog, IsGuardedInAllItsWindows) {
  const ScopedRegistry registry;
  HotkeyConfig config;
  Dota7KeyInfoManager dota7;
  CHotkeySettingDlg dialog(config, dota7);
  dialog.show();
  const EventGuard* const guard = EventGuard::current();
  ASSERT_NE(guard, nullptr);
  ASSERT_NE(dialog.windowHandle(), nullptr);
  EXPECT_TRUE(guard->watches(*dialog.windowHandle()));
  int windows = 0;
  for (const QWidget* const widget : QApplication::allWidgets()) {
    const QString window = QLatin1String(widget->window()->metaObject()->className());
    if (widget->window() != &dialog && window != QLatin1String("COrrerySettingDlg")) continue;
    EXPECT_TRUE(guard->watches(*widget))
        << qUtf8Printable(window) << ": " << qUtf8Printable(widget->objectName());
    if (widget->isWindow()) ++windows;
  }
  EXPECT_EQ(windows, 2);
}

}  // namespace
}  // namespace brennet::test
