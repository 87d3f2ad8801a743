inline int lastOf(int size) {
  int values[size];
  values[size - 1] = 0;
  return values[size - 1];
}
