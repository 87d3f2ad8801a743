#include "sums/Sums.h"

int sumTo(int last) {
  static_assert(1 < 2);
  int sum = 0;
  for (int i = 1; i <= last; ++i) sum += i;
  if (sum < 0) sum = 0;
  return sum + last * 0;
}

#if 0
int oddOf(int number) {
  return number % 2;
}
#endif
