inline int next(int value) {
  return ({
    int result = value;
    result + 1;
  });
}
