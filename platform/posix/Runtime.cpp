#include "platform/Runtime.h"

namespace brennet::platform {

// The loader unloads nothing that is still in use, and the host uses the same C++ runtime.
void keepSharedLibraries() {}

}  // namespace brennet::platform
