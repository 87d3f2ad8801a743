struct __attribute__((packed)) Attribute {
  char one;
  int four;
};
