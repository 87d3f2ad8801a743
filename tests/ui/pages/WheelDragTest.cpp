// Phrases dragged over the chat wheel page, by the events that a window gets.

#include <QDragEnterEvent>
#include <QMimeData>
#include <QTextDocumentFragment>
#include <QWindow>

#include "tests/ui/pages/WheelPage.h"

namespace brennet::test {
namespace {

class WheelDrag : public WheelPage {
 protected:
  // The data that the tree provides when these items are dragged.
  std::unique_ptr<QMimeData> dragged(const QList<QTreeWidgetItem*>& items) {
    QModelIndexList indexes;
    for (QTreeWidgetItem* const item : items) {
      tree().scrollToItem(item);
      indexes += tree().indexAt(tree().visualItemRect(item).center());
    }
    return std::unique_ptr<QMimeData>(tree().model()->mimeData(indexes));
  }

  // Whether `what` is accepted when it is dragged into the window there.
  bool enters(QWidget& target, const QMimeData& what) {
    const QPoint place = target.mapTo(&page(), target.rect().center());
    QDragEnterEvent enter(place, Qt::MoveAction, &what, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(page().windowHandle(), &enter);
    return enter.isAccepted();
  }
  // The same while it is dragged there from another place in the window.
  bool movesOver(QWidget& target, const QMimeData& what) {
    const bool isWelcome = enters(page(), what);
    const QPoint place = target.mapTo(&page(), target.rect().center());
    QDragMoveEvent move(place, Qt::MoveAction, &what, Qt::LeftButton, Qt::NoModifier);
    move.setAccepted(isWelcome);  // as platforms do: each event starts with the last answer
    QApplication::sendEvent(page().windowHandle(), &move);
    return move.isAccepted();
  }
  void drop(QWidget& target, const QMimeData& what) {
    movesOver(target, what);
    const QPoint place = target.mapTo(&page(), target.rect().center());
    QDropEvent event(place, Qt::MoveAction, &what, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(page().windowHandle(), &event);
    // The tree moves by default: it would lose a phrase if a drop of it were accepted.
    EXPECT_FALSE(event.isAccepted());
  }
};

TEST_F(WheelDrag, IsWelcomeOnTheWholePage) {
  show();
  const auto phrases = dragged({&phrase(0, 18)});
  QMimeData text;
  text.setText(QStringLiteral("text"));
  for (const QMimeData* const what : {phrases.get(), &text}) {
    EXPECT_TRUE(enters(page(), *what));
    EXPECT_TRUE(enters(*slot(1).parentWidget(), *what));
    EXPECT_TRUE(enters(find<QWidget>(page(), QStringLiteral("ChatWheelkey")), *what));
    EXPECT_TRUE(enters(tree(), *what)) << "the page behind the tree takes it";
    for (QWidget* const target : {static_cast<QWidget*>(&slot(1)), slot(1).parentWidget(),
                                  static_cast<QWidget*>(&tree()), static_cast<QWidget*>(&page())}) {
      EXPECT_TRUE(movesOver(*target, *what)) << qPrintable(target->objectName());
    }
  }
  EXPECT_TRUE(enters(slot(1), *phrases));
}

TEST_F(WheelDrag, PutsAPhraseIntoTheSlotItIsDroppedOn) {
  show();
  for (int n = 1; n <= 8; ++n) {
    drop(slot(n), *dragged({&phrase(0, n)}));
    EXPECT_EQ(slot(n).text(), phrase(0, n).text(0));
    EXPECT_EQ(stored(n), phrase(0, n).text(0).toStdU16String());
    EXPECT_EQ(slot(n).cursorPosition(), 0) << "the beginning is what shows";
    const auto toolTip = QTextDocumentFragment::fromHtml(slot(n).toolTip());
    EXPECT_EQ(toolTip.toPlainText(), phrase(0, n).text(0));
  }
  EXPECT_EQ(tree().topLevelItem(0)->childCount(), 21) << "the tree keeps its phrases";
}

TEST_F(WheelDrag, LeavesTheLastOfTwoPhrases) {
  show();
  drop(slot(8), *dragged({&phrase(0, 18), &phrase(0, 19)}));
  EXPECT_EQ(slot(8).text(), QStringLiteral("back,defend"));
  EXPECT_EQ(stored(8), u"back,defend");
}

TEST_F(WheelDrag, TakesNothingElse) {
  show();
  QMimeData text;
  text.setText(QStringLiteral("text"));
  const HotkeyScheme before = scheme();
  drop(slot(1), text);
  drop(page(), *dragged({&phrase(0, 18)}));
  drop(tree(), *dragged({&phrase(0, 18)}));
  EXPECT_EQ(slot(1).text(), QString());
  EXPECT_TRUE(scheme() == before);
  EXPECT_EQ(tree().topLevelItemCount(), 4);
}

}  // namespace
}  // namespace brennet::test
