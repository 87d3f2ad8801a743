#pragma once

inline int doubled(int number) {
  return number * 2;
}

// The sum of the numbers from 1 to `last`.
int sumTo(int last);
