inline int& first(int* __restrict__ values) {
  return values[0];
}
