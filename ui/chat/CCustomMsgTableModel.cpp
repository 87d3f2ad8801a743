#include "ui/chat/CCustomMsgTableModel.h"

namespace {

constexpr int kIndexColumn = 0;
constexpr int kContentColumn = 1;
constexpr int kColumns = 2;

}  // namespace

QString CCustomMsgTableModel::Row::*CCustomMsgTableModel::textIn(int column) {
  switch (column) {
    case kIndexColumn:
      return &Row::index;
    case kContentColumn:
      return &Row::content;
    default:
      return nullptr;
  }
}

int CCustomMsgTableModel::rowCount(const QModelIndex&) const {
  return rows_.size();
}

int CCustomMsgTableModel::columnCount(const QModelIndex&) const {
  return kColumns;
}

QVariant CCustomMsgTableModel::data(const QModelIndex& index, int role) const {
  const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
  QString Row::*const text = textIn(index.column());
  if (!isText || text == nullptr || !hasRow(index.row())) return {};
  return rows_[index.row()].*text;
}

bool CCustomMsgTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  QString Row::*const text = textIn(index.column());
  if (!index.isValid() || role != Qt::EditRole || text == nullptr) return false;
  // The index of a row that has gone is as good as any other, but there is nothing to change.
  if (hasRow(index.row())) rows_[index.row()].*text = value.toString();
  emit dataChanged(index, index);
  return true;
}

QVariant CCustomMsgTableModel::headerData(int section, Qt::Orientation orientation,
                                          int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  switch (section) {
    case kIndexColumn:
      return tr("index");
    case kContentColumn:
      return tr("content");
    default:
      return {};
  }
}

bool CCustomMsgTableModel::insertRows(int row, int count, const QModelIndex&) {
  const int first = qBound(0, row, rows_.size());
  beginInsertRows(QModelIndex(), first, first + count - 1);
  if (count > 0) rows_.insert(first, count, Row());
  endInsertRows();
  return true;
}

bool CCustomMsgTableModel::removeRows(int row, int count, const QModelIndex&) {
  beginRemoveRows(QModelIndex(), row, row + count - 1);
  for (int i = 0; i < count && hasRow(row); ++i) rows_.remove(row);
  endRemoveRows();
  return true;
}

Qt::ItemFlags CCustomMsgTableModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::ItemIsEnabled;
  Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  flags.setFlag(Qt::ItemIsEditable, index.column() == kContentColumn);
  return flags;
}
