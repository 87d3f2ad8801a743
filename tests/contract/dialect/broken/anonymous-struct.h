struct Outer {
  struct {
    int inner;
  };
};
