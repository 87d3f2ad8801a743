#pragma once

#include <brennet/IBrennet.h>

#include "check/Arguments.h"
#include "check/Findings.h"
#include "check/HostCalls.h"

namespace brennet::check {

// A library and the host that calls it, from the first GetBrennetPtr until the unloading. There is
// at most one at a time.
class Session {
 public:
  // The host calls `hostsObject`, and the session `library`; both outlive it. See Findings for the
  // others.
  Session(IBrennet& library, const IBrennet& hostsObject, Findings::Write write, bool stops);
  // Writes the summary.
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // The only one. There has to be one.
  [[nodiscard]] static Session& current();

  IBrennet& target;
  const IBrennet& object;
  Findings findings;
  HostCalls calls;
  Records records;
};

}  // namespace brennet::check
