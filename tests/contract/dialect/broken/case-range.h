inline bool isDigit(char character) {
  switch (character) {
    case '0' ... '9':
      return true;
    default:
      return false;
  }
}
