#include "ui/chat/CCustomMsgTableModel.h"

#include <gtest/gtest.h>

#include <vector>

namespace brennet {
namespace {

// Also makes indexes of rows and columns that the table does not have.
class AnyIndexModel : public CCustomMsgTableModel {
 public:
  using CCustomMsgTableModel::CCustomMsgTableModel;
  [[nodiscard]] QModelIndex at(int row, int column) const { return createIndex(row, column); }
};

QString text(const AnyIndexModel& model, int row, int column) {
  return model.data(model.at(row, column), Qt::DisplayRole).toString();
}

// "index=content" of each row.
QStringList rows(const AnyIndexModel& model) {
  QStringList result;
  for (int row = 0; row < model.rowCount(); ++row) {
    result += text(model, row, 0) + QLatin1Char('=') + text(model, row, 1);
  }
  return result;
}

void fill(AnyIndexModel& model, int count) {
  model.insertRows(0, count);
  for (int row = 0; row < count; ++row) {
    EXPECT_TRUE(model.setData(model.at(row, 0), QString::number(row), Qt::EditRole));
    EXPECT_TRUE(model.setData(model.at(row, 1), QString(row + 1, QLatin1Char('x')), Qt::EditRole));
  }
}

TEST(CCustomMsgTableModel, HasTwoColumnsOfTextsForDisplayAndEditing) {
  AnyIndexModel model;
  EXPECT_EQ(model.columnCount(), 2);
  EXPECT_EQ(model.rowCount(), 0);
  fill(model, 2);
  EXPECT_EQ(rows(model).join(QLatin1Char(' ')), QStringLiteral("0=x 1=xx"));
  EXPECT_EQ(model.data(model.at(1, 1), Qt::EditRole).toString(), QStringLiteral("xx"));
}

TEST(CCustomMsgTableModel, HasNoDataElsewhere) {
  AnyIndexModel model;
  fill(model, 2);
  EXPECT_FALSE(model.data(QModelIndex(), Qt::DisplayRole).isValid());
  EXPECT_FALSE(model.data(model.at(2, 0), Qt::DisplayRole).isValid());
  EXPECT_FALSE(model.data(model.at(0, 2), Qt::DisplayRole).isValid());
  EXPECT_FALSE(model.data(model.at(0, 0), Qt::ToolTipRole).isValid());
}

TEST(CCustomMsgTableModel, TakesTheEditRoleAlone) {
  AnyIndexModel model;
  fill(model, 1);
  const QString other = QStringLiteral("other");
  EXPECT_FALSE(model.setData(QModelIndex(), other, Qt::EditRole));
  EXPECT_FALSE(model.setData(model.at(0, 1), other, Qt::DisplayRole));
  EXPECT_FALSE(model.setData(model.at(0, 2), other, Qt::EditRole));
  EXPECT_EQ(rows(model), QStringList(QStringLiteral("0=x")));
}

TEST(CCustomMsgTableModel, TellsOfEachChange) {
  AnyIndexModel model;
  fill(model, 1);
  std::vector<QModelIndex> changed;
  QObject::connect(
      &model, &QAbstractItemModel::dataChanged,
      [&](const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) {
        EXPECT_EQ(first, last);
        EXPECT_TRUE(roles.isEmpty());
        changed.push_back(first);
      });
  model.setData(model.at(0, 1), QStringLiteral("new"), Qt::EditRole);
  EXPECT_TRUE(model.setData(model.at(7, 1), QStringLiteral("gone"), Qt::EditRole));
  ASSERT_EQ(changed.size(), 2U);
  EXPECT_EQ(changed[0], model.at(0, 1));
  EXPECT_EQ(changed[1], model.at(7, 1));
  EXPECT_EQ(rows(model), QStringList(QStringLiteral("0=new")));
}

TEST(CCustomMsgTableModel, LetsTheContentAloneBeEditedInPlace) {
  AnyIndexModel model;
  fill(model, 1);
  EXPECT_EQ(model.flags(QModelIndex()), Qt::ItemFlags(Qt::ItemIsEnabled));
  EXPECT_FALSE(model.flags(model.at(0, 0)).testFlag(Qt::ItemIsEditable));
  EXPECT_TRUE(model.flags(model.at(0, 0)).testFlag(Qt::ItemIsSelectable));
  EXPECT_TRUE(model.flags(model.at(0, 1)).testFlag(Qt::ItemIsEditable));
}

TEST(CCustomMsgTableModel, IsKnownToCataloguesByItsName) {
  EXPECT_STREQ(CCustomMsgTableModel::staticMetaObject.className(), "CCustomMsgTableModel");
}

TEST(CCustomMsgTableModel, NamesItsColumns) {
  const AnyIndexModel model;
  EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("index"));
  EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("content"));
  EXPECT_FALSE(model.headerData(2, Qt::Horizontal, Qt::DisplayRole).isValid());
  EXPECT_FALSE(model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
  EXPECT_FALSE(model.headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
}

TEST(CCustomMsgTableModel, InsertsAndRemovesRows) {
  struct Step {
    bool inserts;
    int row, count;
    QString expected;
  };
  const Step kSteps[] = {
      {true, 1, 2, QStringLiteral("0=x = = 1=xx")},
      {true, 4, 1, QStringLiteral("0=x = = 1=xx =")},
      {true, 99, 1, QStringLiteral("0=x = = 1=xx = =")},
      {true, 0, 0, QStringLiteral("0=x = = 1=xx = =")},
      {false, 1, 2, QStringLiteral("0=x 1=xx = =")},
      {false, 1, 0, QStringLiteral("0=x 1=xx = =")},
      {false, 2, 99, QStringLiteral("0=x 1=xx")},
      {false, 7, 1, QStringLiteral("0=x 1=xx")},
      {false, 0, 2, QString()},
  };
  AnyIndexModel model;
  fill(model, 2);
  for (const Step& step : kSteps) {
    EXPECT_TRUE(step.inserts ? model.insertRows(step.row, step.count)
                             : model.removeRows(step.row, step.count));
    EXPECT_EQ(rows(model).join(QLatin1Char(' ')), step.expected);
  }
}

}  // namespace
}  // namespace brennet
