struct [[gnu::packed]] Record {
  char first;
  int second;
};
