#pragma once

#include <QStringList>

// Gathers what the library tells of a load on Qt's debug output, as long as it lives; whatever else
// comes there goes on its way. There may be one at a time.
class LoadMessages {
 public:
  LoadMessages();
  ~LoadMessages();
  LoadMessages(const LoadMessages&) = delete;
  LoadMessages& operator=(const LoadMessages&) = delete;

  [[nodiscard]] const QStringList& lines() const { return lines_; }

 private:
  static void take(QtMsgType type, const QMessageLogContext& context, const QString& message);

  static LoadMessages* current_;
  QtMessageHandler before_;
  QStringList lines_;
};
