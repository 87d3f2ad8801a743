inline int countOf(unsigned value) {
  return __builtin_popcount(value);
}
