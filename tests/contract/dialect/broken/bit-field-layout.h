// True only for GNU compilers: Microsoft's pack only bit fields of the same type.
struct BitFields {
  unsigned char low : 4;
  unsigned int high : 4;
};
static_assert(sizeof(BitFields) == 4, "the layout is not the one of GNU compilers");
