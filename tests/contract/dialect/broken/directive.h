#include_next <stddef.h>
