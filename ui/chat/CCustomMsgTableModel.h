#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QVector>

// Rows of an index and a content, both texts; only the content can be edited in place. The advanced
// page shows the quick-chat phrases with it. In no namespace: catalogues know it by this name.
class CCustomMsgTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  // Accepts only the edit role, for either column.
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;
  // New rows hold two empty texts.
  bool insertRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;
  bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Row {
    QString index;
    QString content;
  };
  // The text of a row in a column; null when the table has no such column.
  static QString Row::*textIn(int column);
  [[nodiscard]] bool hasRow(int row) const { return row >= 0 && row < rows_.size(); }

  QVector<Row> rows_;
};
