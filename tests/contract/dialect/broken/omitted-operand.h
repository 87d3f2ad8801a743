inline int orOne(int value) {
  return value ?: 1;
}
