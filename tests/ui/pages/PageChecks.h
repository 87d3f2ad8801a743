#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QTranslator>
#include <Qt>

class QWidget;
struct QMetaObject;

// What the tests of pages share: real events, and what has to hold for every page.

namespace brennet::test {

// The signals and slots that a class adds, in the order in which clients see them.
[[nodiscard]] QStringList methodNames(const QMetaObject& type);

// A key with the code that Windows sends for it, for a field or for the native window of one.
void pressKey(QObject& target, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// The press once more, as it is sent while a key stays down.
void holdKey(QObject& target, Qt::Key key);
void releaseKey(QObject& target, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// The object names of all widgets that Tab reaches in a window that is shown, from the first on.
[[nodiscard]] QStringList tabOrder(QWidget& window);

// Fails if anything else follows a key field in an order of names: a key field keeps Tab as a key,
// so nothing behind it could be reached.
void expectKeyFieldsLast(const QStringList& order);

// Fails for each control without a name for assistive technology, and for each label just left of a
// line edit that is not its buddy.
void expectAccessible(const QWidget& page);

// Makes all texts longer while it lives: to 150 or 200 percent of their length.
class LongerTexts : public QTranslator {
 public:
  explicit LongerTexts(int percent = 150) : percent_(percent) {
    QCoreApplication::installTranslator(this);
  }
  ~LongerTexts() override { QCoreApplication::removeTranslator(this); }
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* /*context*/, const char* text,
                                  const char* /*comment*/, int /*number*/) const override {
    const QString whole = QString::fromUtf8(text);
    return whole + whole.left((whole.size() * (percent_ - 100) + 99) / 100);
  }

 private:
  int percent_;
};

// Fails if the text of a label, check box or button does not fit, if a widget sticks out of its
// parent, or if two in the same parent overlap.
void expectNothingIsCut(QWidget& window);

}  // namespace brennet::test
