// The same type as in number.cpp.
struct Setting {
  int number = 1;
};

int number();

int main() {
  return number() - Setting().number;
}
