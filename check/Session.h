#pragma once

#include <brennet/IBrennet.h>
#include "check/Arguments.h"
#include "check/Findings.h"
#include "check/HostCalls.h"
#include "check/ObjectPlace.h"

namespace brennet::check {

// A library and the host that calls it, from the first GetBrennetPtr until the unloading. There is
// at most one at a time.
class Session {
 public:
  // `checked` outlives this object. See Findings for the others.
  Session(IBrennet& checked, Findings::Write write, bool stops);
  // Writes the summary. The object that the host has stays, see ObjectPlace.
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // The only one. There has to be one.
  [[nodiscard]] static Session& current();

  // What the host calls instead of the library.
  [[nodiscard]] IBrennet* object() const { return object_; }

  IBrennet& target;
  Findings findings;
  HostCalls calls;
  Records records;

 private:
  bool stops_;
  ObjectPlace place_;
  IBrennet* object_;
};

}  // namespace brennet::check
