#include "check/CheckedLibrary.h"

#include <new>
#include <utility>

#include "check/CheckedBrennet.h"

namespace brennet::check {

static_assert(sizeof(CheckedBrennet) == sizeof(void*), "the object has no data");

CheckedLibrary::CheckedLibrary(IBrennet& library, Findings::Write write, bool stops)
    : stops_(stops), object_(new (place_.memory()) CheckedBrennet) {
  session_.emplace(library, *object_, std::move(write), stops);
}

CheckedLibrary::~CheckedLibrary() {
  session_.reset();
  place_.outlive(stops_);
}

}  // namespace brennet::check
