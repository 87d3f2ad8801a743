#include "sums/Sums.h"

int main() {
  return sumTo(4) == 10 && doubled(4) == 8 ? 0 : 1;
}
