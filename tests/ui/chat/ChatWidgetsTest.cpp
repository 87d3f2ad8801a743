// Phrases that are dragged from the tree and dropped on a field.

#include <gtest/gtest.h>

#include <QDataStream>
#include <QDragEnterEvent>
#include <QMap>
#include <QMimeData>
#include <QVariant>
#include <memory>

#include "ui/chat/CCustomLineEdit.h"
#include "ui/chat/CCustomTreeWidget.h"

namespace brennet {
namespace {

const QString kFormat = QStringLiteral("application/x-qabstractitemmodeldatalist");

QByteArray items(const QStringList& texts) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  int row = 0;
  for (const QString& text : texts) {
    stream << row++ << 0 << QMap<int, QVariant>{{Qt::DisplayRole, text}, {Qt::ToolTipRole, 1}};
  }
  return bytes;
}

std::unique_ptr<QMimeData> mime(const QString& format, const QByteArray& bytes) {
  auto data = std::make_unique<QMimeData>();
  data->setData(format, bytes);
  return data;
}

class OpenLineEdit : public CCustomLineEdit {
 public:
  using CCustomLineEdit::dragEnterEvent;
  using CCustomLineEdit::dropEvent;

  bool enters(const QMimeData& dragged) {
    QDragEnterEvent event(QPoint(), Qt::MoveAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    dragEnterEvent(&event);
    return event.isAccepted();
  }
  QString after(const QMimeData& dropped) {
    setText(QStringLiteral("before"));
    QDropEvent event(QPointF(), Qt::MoveAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    dropEvent(&event);
    return text();
  }
};

TEST(ChatWidgetsCustomLineEdit, LetsItemsInAlone) {
  OpenLineEdit edit;
  EXPECT_TRUE(edit.enters(*mime(kFormat, items({QStringLiteral("a")}))));
  EXPECT_FALSE(edit.enters(*mime(QStringLiteral("text/plain"), "a")));
}

TEST(ChatWidgetsCustomLineEdit, TakesTheTextOfTheLastItem) {
  OpenLineEdit edit;
  const auto drop = [&](const QByteArray& bytes) { return edit.after(*mime(kFormat, bytes)); };
  EXPECT_EQ(drop(items({QStringLiteral("a")})), QStringLiteral("a"));
  EXPECT_EQ(drop(items({QStringLiteral("a"), QStringLiteral("b")})), QStringLiteral("b"));
  EXPECT_EQ(drop(items({QString()})), QString());
  EXPECT_EQ(drop({}), QStringLiteral("before"));
  EXPECT_EQ(edit.after(*mime(QStringLiteral("text/plain"), "a")), QStringLiteral("before"));
}

TEST(ChatWidgetsCustomLineEdit, TakesNothingFromADamagedItem) {
  OpenLineEdit edit;
  const QByteArray whole = items({QStringLiteral("first"), QStringLiteral("second")});
  const int firstSize = items({QStringLiteral("first")}).size();
  for (int size = 0; size < whole.size(); ++size) {
    const QString expected = size < firstSize ? QStringLiteral("before") : QStringLiteral("first");
    EXPECT_EQ(edit.after(*mime(kFormat, whole.left(size))), expected) << size;
  }
  EXPECT_EQ(edit.after(*mime(kFormat, QByteArray(8, '\xFF'))), QStringLiteral("before"));
}

class OpenTree : public CCustomTreeWidget {
 public:
  using CCustomTreeWidget::startDrag;

  // Whether a drag would start: only then the tree asks for the data.
  bool drags() {
    asked_ = false;
    startDrag(Qt::MoveAction);
    return asked_;
  }

 protected:
  QMimeData* mimeData(const QList<QTreeWidgetItem*>) const override {
    asked_ = true;
    return nullptr;  // nothing to drag after all
  }

 private:
  mutable bool asked_ = false;
};

TEST(ChatWidgetsCustomTreeWidget, DragsWhatIsInABranchAlone) {
  OpenTree tree;
  auto* const branch = new QTreeWidgetItem(&tree, {QStringLiteral("branch")});
  auto* const phrase = new QTreeWidgetItem(branch, {QStringLiteral("phrase")});
  EXPECT_FALSE(tree.drags());
  tree.setCurrentItem(branch);
  EXPECT_FALSE(tree.drags());
  tree.setCurrentItem(phrase);
  EXPECT_TRUE(tree.drags());
}

}  // namespace
}  // namespace brennet
