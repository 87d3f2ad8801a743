#include "platform/Runtime.h"

namespace brennet::platform {

// The loader unloads nothing that anybody else uses, and the C++ runtime is the host's too.
void keepSharedLibraries() {}

}  // namespace brennet::platform
