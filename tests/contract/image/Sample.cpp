// A library that passes check.py, unless a macro makes it break one fact.

extern "C" {

// From the library that refuses.sh makes for it.
__declspec(dllimport) void help();

// What the linker calls for a library that is loaded on its first use.
void* __stdcall __delayLoadHelper2(const void*, void*) {
  return nullptr;
}

unsigned object = 1;

#if defined(DECORATED)
__declspec(dllexport) void* __stdcall GetBrennetPtr() {
#else
__declspec(dllexport) void* GetBrennetPtr() {
#endif
#if defined(FOLDER)
  object += FOLDER[object % 8];
#endif
  return &object;
}

void another() {}

int __stdcall DllMain(void*, unsigned, void*) {
  help();
  return 1;
}

}  // extern "C"
