// True for GNU compilers alone: Microsoft packs bit fields of one type only.
struct BitFields {
  unsigned char low : 4;
  unsigned int high : 4;
};
static_assert(sizeof(BitFields) == 4, "the layout is not the one of GNU compilers");
