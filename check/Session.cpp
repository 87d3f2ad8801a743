#include "check/Session.h"

#include <new>
#include <utility>

#include "check/CheckedBrennet.h"

namespace brennet::check {
namespace {

Session* only = nullptr;

static_assert(sizeof(CheckedBrennet) == sizeof(void*), "the object has no data");

}  // namespace

Session::Session(IBrennet& checked, Findings::Write write, bool stops)
    : target(checked),
      findings(std::move(write), stops),
      calls(findings),
      records(findings),
      stops_(stops),
      object_(new (place_.memory()) CheckedBrennet) {
  only = this;
}

Session::~Session() {
  calls.writeSummary();
  only = nullptr;
  place_.outlive(stops_);
}

Session& Session::current() {
  return *only;
}

}  // namespace brennet::check
