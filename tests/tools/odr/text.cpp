// The other one of two types of the same name.
struct Setting {
  const char* text = "";
};

int number();

int main() {
  return Setting().text == nullptr ? 1 : number();
}
