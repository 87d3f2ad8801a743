// Functions that compilers call of their own accord; a host has them in its C runtime.

extern "C" {

void* __cdecl memset(void* to, int value, unsigned size) {
  auto* const bytes = static_cast<unsigned char*>(to);
  for (unsigned i = 0; i < size; ++i) bytes[i] = static_cast<unsigned char>(value);
  return to;
}

void* __cdecl memcpy(void* to, const void* from, unsigned size) {
  auto* const bytes = static_cast<unsigned char*>(to);
  const auto* const source = static_cast<const unsigned char*>(from);
  for (unsigned i = 0; i < size; ++i) bytes[i] = source[i];
  return to;
}

}  // extern "C"
