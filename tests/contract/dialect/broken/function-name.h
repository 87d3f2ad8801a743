inline const char* name() {
  return __PRETTY_FUNCTION__;
}
