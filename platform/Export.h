#pragma once

// Marks what the shared library exports; everything else is hidden.
#if defined(_WIN32)
#define BRENNET_EXPORT __declspec(dllexport)
#else
#define BRENNET_EXPORT __attribute__((visibility("default")))
#endif
