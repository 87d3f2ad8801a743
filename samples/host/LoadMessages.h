#pragma once

#include <QStringList>

// Collects, during its lifetime, what the library reports about a load on Qt's debug output;
// everything else there is passed on. There may be only one at a time.
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
