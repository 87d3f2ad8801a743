inline int twice(int value) {
  __typeof__(value) copy = value;
  return copy + value;
}
