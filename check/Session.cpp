#include "check/Session.h"

#include <utility>

namespace brennet::check {
namespace {

Session* only = nullptr;

}  // namespace

Session::Session(IBrennet& library, const IBrennet& hostsObject, Findings::Write write, bool stops)
    : target(library),
      object(hostsObject),
      findings(std::move(write), stops),
      calls(findings),
      records(findings) {
  only = this;
}

Session::~Session() {
  calls.writeSummary();
  only = nullptr;
}

Session& Session::current() {
  return *only;
}

}  // namespace brennet::check
