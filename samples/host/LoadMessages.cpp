#include "LoadMessages.h"

#include <cstring>

LoadMessages* LoadMessages::current_ = nullptr;

LoadMessages::LoadMessages() : before_(qInstallMessageHandler(take)) {
  current_ = this;
}

LoadMessages::~LoadMessages() {
  current_ = nullptr;
  qInstallMessageHandler(before_);
}

void LoadMessages::take(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (std::strcmp(context.category, "brennet.load") == 0) {
    current_->lines_ += message;
  } else {
    current_->before_(type, context, message);
  }
}
