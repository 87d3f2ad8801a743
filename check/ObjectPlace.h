#pragma once

namespace brennet::check {

// Memory for the object that hosts call, which stays when this library is unloaded: a host that
// calls it then is told so instead of running into code that is gone. The system gives a page or
// two for each load, which nobody gives back.
class ObjectPlace {
 public:
  // Throws std::bad_alloc if there is no memory.
  ObjectPlace();
  ObjectPlace(const ObjectPlace&) = delete;
  ObjectPlace& operator=(const ObjectPlace&) = delete;

  // Room for an object that is no larger than a pointer.
  [[nodiscard]] void* memory() const { return pages_; }

  // The object has ended and the library is about to be unloaded. From now on every slot says on
  // standard error that it was called too late, and fails; or, with `stops`, ends the process.
  // Where the system or the processor does not allow that, a call ends in std::terminate.
  void outlive(bool stops);

 private:
  void* pages_;
};

}  // namespace brennet::check
