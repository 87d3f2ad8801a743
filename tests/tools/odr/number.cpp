// One of two types of the same name.
struct Setting {
  int number = 1;
};

int number() {
  return Setting().number;
}
