// Any calls of a host, in any order, while memory and disk run out: Session.h says what is asked
// for. The script is the input (SessionScript.h).

#include <QtGlobal>

#include <cstddef>
#include <cstdint>

#include "fuzz/Target.h"
#include "fuzz/host/Session.h"
#include "host/CBrennetImpl.h"

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return sessionGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // What a load could not use is told on Qt's debug output.
  static const auto handler =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  static_cast<void>(handler);
  static brennet::CBrennetImpl brennet;
  static brennet::fuzz::Session session(brennet);
  session.run(brennet::fuzz::bytesOf(data, size));
  return 0;
}
